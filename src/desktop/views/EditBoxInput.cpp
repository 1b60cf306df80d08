#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/PopUpMenu.h"
#include "desktop/views/EditBox.h"
#include "platform/Desktop.h"
#include "platform/Form.h"
#include "platform/Input.h"

namespace desktop {
namespace {

/// The most characters that are pasted: more is a mistake of the hand, and would take its time.
constexpr int kLongestPaste = 100'000;
constexpr const char* kPasteIsTooLong =
    "O texto copiado tem mais de 100.000 caracteres e não foi colado. Copie um trecho menor.";

/// What can be typed of a text: tabs would press a key that acts, and so would line breaks in a
/// field of one line, which takes the first line alone.
QString Typeable(QString text, bool multiline) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  if (!multiline) text = text.section(u'\n', 0, 0);
  text.replace(u'\t', u' ');
  text.removeIf(
      [](QChar each) { return each.category() == QChar::Other_Control && each != u'\n'; });
  return text;
}

/// Whether the key moves the caret from line to line or within its line.
bool IsForLines(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

}  // namespace

int EditBoxView::Anchor() const {
  const int start = Box().SelStart();
  return Box().Caret() == start ? start + Box().SelLength() : start;
}

void EditBoxView::SelectTo(int caret, bool extend) {
  platform::input::Select(Box(), extend ? Anchor() : caret, caret);
  update();
}

int EditBoxView::WordEdge(int from, bool forward) const {
  const QString text = ToQt(Box().Shown());
  if (IsPassword()) return forward ? ToCharacters(text, static_cast<int>(text.size())) : 0;
  int at = ToUnits(text, from);
  const auto blank = [&](int i) { return text.at(i).isSpace(); };
  const int size = static_cast<int>(text.size());
  if (forward) {
    while (at < size && !blank(at)) ++at;
    while (at < size && blank(at)) ++at;
  } else {
    while (at > 0 && blank(at - 1)) --at;
    while (at > 0 && !blank(at - 1)) --at;
  }
  return ToCharacters(text, at);
}

void EditBoxView::Erase() {
  platform::input::Press(Box().OwnerForm(), platform::KeyStroke::Of(platform::Key::kDelete));
}

void EditBoxView::Copy() {
  if (IsPassword() || Box().SelLength() == 0) return;
  QGuiApplication::clipboard()->setText(ToQt(Box().SelectedText()));
}

void EditBoxView::Paste() {
  if (!IsWritable()) return;
  QString text = QGuiApplication::clipboard()->text();
  // What was copied with the blanks and line ends around it is meant without them.
  if (!Box().multiline) text = text.trimmed();
  text = Typeable(text, Box().multiline);
  if (text.size() > kLongestPaste) {
    // What is cut off at some place would be lost without a word.
    platform::input::Run([] {
      platform::Desktop::Current().Ask({kPasteIsTooLong, "", platform::Icon::kInformation,
                                        platform::Buttons::kOk, platform::Answer::kOk});
    });
    return;
  }
  platform::input::Type(Box().OwnerForm(), FromQt(text));
}

bool EditBoxView::TakeEditingKey(const QKeyEvent& event) {
  if (event.matches(QKeySequence::SelectAll)) {
    platform::input::Select(Box(), 0, static_cast<int>(Box().Shown().size()));
  } else if (event.matches(QKeySequence::Copy)) {
    Copy();
  } else if (event.matches(QKeySequence::Cut)) {
    Copy();
    if (IsWritable() && !IsPassword() && Box().SelLength() > 0) Erase();
  } else if (event.matches(QKeySequence::Paste)) {
    Paste();
  } else {
    return false;
  }
  update();
  return true;
}

bool EditBoxView::TakeCaretKey(const QKeyEvent& event) {
  const bool extend = event.modifiers() & Qt::ShiftModifier;
  const bool control = event.modifiers() & Qt::ControlModifier;
  const int caret = Box().Caret();
  if (control && (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right)) {
    SelectTo(WordEdge(caret, event.key() == Qt::Key_Right), extend);
    return true;
  }
  if (control && event.key() == Qt::Key_Backspace && Box().SelLength() == 0 && IsWritable()) {
    SelectTo(WordEdge(caret, false), true);
    if (Box().SelLength() > 0) Erase();
    return true;
  }
  if (!Box().multiline || control || !IsForLines(event.key())) return false;
  const EditLayout& layout = LaidOut();
  const QString text = Shown();
  const int unit = UnitOf(caret);
  const QRectF here = layout.Caret(unit);
  const auto moved = [&](double by) {
    const double y = here.center().y() + by;
    if (y < 0) return 0;
    return y > layout.Height() ? static_cast<int>(text.size())
                               : layout.PositionAt({here.left(), y});
  };
  const double page = std::max(height() - 2 * here.height(), here.height());
  int to;
  switch (event.key()) {
    case Qt::Key_Up:
      to = moved(-here.height());
      break;
    case Qt::Key_Down:
      to = moved(here.height());
      break;
    case Qt::Key_PageUp:
      to = moved(-page);
      break;
    case Qt::Key_PageDown:
      to = moved(page);
      break;
    case Qt::Key_Home:
      to = layout.Line(unit).first;
      break;
    case Qt::Key_End:
      to = layout.Line(unit).second;
      break;
    default:
      return false;
  }
  SelectTo(ToCharacters(text, to), extend);
  return true;
}

bool EditBoxView::TakeKey(QKeyEvent& event) {
  if (!Shows()->HasFocus()) return View::TakeKey(event);
  if (TakeEditingKey(event) || TakeCaretKey(event)) return true;
  const bool taken = View::TakeKey(event);
  // The other end of a selection may have become the caret, which is no new value of a property.
  update();
  return taken;
}

int EditBoxView::CharacterAt(const QPoint& place) const {
  const int unit = LaidOut().PositionAt(QPointF(place) - Origin());
  return IsPassword() ? unit : ToCharacters(Shown(), unit);
}

void EditBoxView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool had = Shows()->HasFocus();
  if (!had) platform::input::Focus(*Shows());
  if (Shows() == nullptr || !Shows()->HasFocus()) return;
  selecting_ = true;
  // The press that brings the focus leaves all selected, ready to be typed over.
  if (had) SelectTo(CharacterAt(event->pos()), event->modifiers() & Qt::ShiftModifier);
}

void EditBoxView::mouseMoveEvent(QMouseEvent* event) {
  if (!selecting_ || !(event->buttons() & Qt::LeftButton)) return;
  SelectTo(CharacterAt(event->pos()), true);
}

void EditBoxView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && std::exchange(selecting_, false)) Clicked();
}

void EditBoxView::Clicked() {
  if (Shows()->Click.HasHandler()) platform::input::Click(*Shows());
}

void EditBoxView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !Shows()->HasFocus()) return;
  const QString text = ToQt(Box().Shown());
  const int size = ToCharacters(text, static_cast<int>(text.size()));
  const int at = CharacterAt(event->pos());
  const int start = WordEdge(std::min(at + 1, size), false);
  platform::input::Select(Box(), start, std::max(WordEdge(start, true), start));
  update();
}

void EditBoxView::contextMenuEvent(QContextMenuEvent* event) {
  if (!Shows()->HasFocus()) platform::input::Focus(*Shows());
  if (Shows() == nullptr || !Shows()->HasFocus()) return;
  const bool some = Box().SelLength() > 0 && !IsPassword();
  const bool clip = !QGuiApplication::clipboard()->text().isEmpty();
  PopUpMenu menu(*this);
  menu.Add(QStringLiteral("Recortar"), some && IsWritable(), [this] {
    Copy();
    Erase();
  });
  menu.Add(QStringLiteral("Copiar"), some, [this] { Copy(); });
  menu.Add(QStringLiteral("Colar"), clip && IsWritable(), [this] { Paste(); });
  menu.Add(QStringLiteral("Selecionar tudo"), !Box().Shown().empty(),
           [this] { platform::input::Select(Box(), 0, static_cast<int>(Box().Shown().size())); });
  const std::function<void()> chosen = menu.Choose(event->globalPos());
  if (chosen && Shows() != nullptr) chosen();
  update();
}

void EditBoxView::Follow(const platform::PropertyBase&) {
  hasChanged_ = true;
}

void EditBoxView::focusOutEvent(QFocusEvent* event) {
  composing_.clear();
  View::focusOutEvent(event);
}

void EditBoxView::inputMethodEvent(QInputMethodEvent* event) {
  composing_ = event->preeditString();
  const QString commit = event->commitString();
  if (IsWritable() && event->replacementLength() > 0) {
    const int from = Box().Caret() + event->replacementStart();
    platform::input::Select(Box(), from, from + event->replacementLength());
  }
  if (!commit.isEmpty()) {
    platform::input::Type(Box().OwnerForm(), FromQt(Typeable(commit, Box().multiline)));
  }
  event->accept();
  update();
}

QVariant EditBoxView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (Shows() == nullptr) return {};
  const QString text = ToQt(Box().Shown());
  const auto unit = [&](int character) { return ToUnits(text, character); };
  switch (query) {
    case Qt::ImEnabled:
      return IsWritable();
    case Qt::ImCursorRectangle:
      return LaidOut().Caret(UnitOf(Box().Caret())).translated(Origin()).toRect();
    case Qt::ImCursorPosition:
      return unit(Box().Caret());
    case Qt::ImAnchorPosition:
      return unit(Anchor());
    case Qt::ImSurroundingText:
      return IsPassword() ? QString() : text;
    case Qt::ImCurrentSelection:
      return IsPassword() ? QString() : ToQt(Box().SelectedText());
    case Qt::ImHints: {
      Qt::InputMethodHints hints = Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
      if (IsPassword()) hints |= Qt::ImhHiddenText | Qt::ImhSensitiveData;
      return static_cast<int>(hints);
    }
    default:
      return View::inputMethodQuery(query);
  }
}

}  // namespace desktop
