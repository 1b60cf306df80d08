#include "desktop/views/EditBox.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Colors.h"
#include "platform/Label.h"
#include "platform/ZVTextBox.h"

namespace desktop {
namespace {

constexpr platform::Color kRed = platform::Rgb(255, 0, 0);
constexpr QColor kSelection{0xb5, 0xdd, 0xd5};
constexpr QColor kQuietSelection{0xdf, 0xe6, 0xe7};
constexpr double kCaretWidth = 1.5;

bool IsOnDeepPanel(const platform::Control& control) {
  const platform::Control* const panel = control.Parent().AsControl();
  return panel != nullptr && panel->look == platform::Look::kMainAmount;
}

}  // namespace

EditBoxView::EditBoxView(platform::EditBox& box, QWidget& parent) : View(box, parent) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_InputMethodEnabled);
  setCursor(EditBoxView::Pointer());
}

EditBoxView::Style EditBoxView::StyleOf() const {
  const platform::Look look = Shows()->look;
  return {look == platform::Look::kAmount, look == platform::Look::kMainAmount,
          IsOnDeepPanel(*Shows())};
}

bool EditBoxView::IsPassword() const {
  return Shows()->GetKind() == platform::Kind::kTextBox &&
         static_cast<const platform::ZVTextBox*>(Shows())->password;
}

bool EditBoxView::IsWritable() const {
  return IsUsable() && !Box().Locked();
}

double EditBoxView::RingRadius() const {
  return Shows() != nullptr && StyleOf().mainAmount ? paint::kPanelRadius : paint::kFieldRadius;
}

QString EditBoxView::Spoken() const {
  return Shows() == nullptr || IsPassword() ? QString() : ToQt(Box().Shown());
}

QFont EditBoxView::FieldFont() const {
  if (!IsFigures()) return fonts::Text();
  const Style style = StyleOf();
  QFont font = fonts::Text();
  if (style.amount || style.mainAmount) {
    // As large as its field lets it be.
    const double most = style.mainAmount ? 34 : 22;
    font = fonts::Sized(std::min(most, height() * 0.85), QFont::Bold);
  }
  // An amount is never cut, for it would read as another one: a longer one is set smaller.
  const double wide = fonts::figures::Advance(font, ToQt(Box().Shown()));
  const double room = TextBox().width();
  if (wide > room && room > 0) font.setPointSizeF(font.pointSizeF() * room / wide);
  return font;
}

QString EditBoxView::Shown() const {
  QString text = ToQt(Box().Shown());
  if (IsPassword()) {
    text = QString(ToCharacters(text, static_cast<int>(text.size())), QChar(0x25CF));
  }
  return composing_.isEmpty() ? text : text.insert(UnitOf(Box().Caret()), composing_);
}

int EditBoxView::UnitOf(int character) const {
  return IsPassword() ? character : ToUnits(ToQt(Box().Shown()), character);
}

bool EditBoxView::IsBare() const {
  const Style style = StyleOf();
  return style.onDeep || (style.amount && Box().Locked());
}

bool EditBoxView::IsFigures() const {
  const Style style = StyleOf();
  return Shows()->GetKind() == platform::Kind::kNumberBox || style.amount || style.mainAmount;
}

QRectF EditBoxView::TextBox() const {
  // An amount without a frame of its own ends where its label ends.
  if (IsBare()) return rect();
  return QRectF(rect()).adjusted(9, 0, -9, 0);
}

const EditLayout& EditBoxView::LaidOut() const {
  layout_.Set(Shown(), {FieldFont(), TextBox().width(), Box().multiline, IsFigures()});
  return layout_;
}

QPointF EditBoxView::Origin() const {
  const QRectF box = TextBox();
  const EditLayout& layout = LaidOut();
  if (Box().multiline) return QPointF(box.left(), 6) - scroll_;
  return QPointF(box.left(), box.center().y() - layout.Height() / 2) - scroll_;
}

void EditBoxView::ShowCaret() {
  const EditLayout& layout = LaidOut();
  const QRectF room(QPointF(0, 0), Box().multiline ? TextBox().size() - QSizeF(0, 12)
                                                   : QSizeF(TextBox().width(), height()));
  const QRectF caret = layout.Caret(UnitOf(Box().Caret()) + static_cast<int>(composing_.size()));
  const auto keep = [](double scroll, double low, double high, double size, double from,
                       double to) {
    if (!(low < 0 || high > size)) return 0.0;
    scroll = std::min(scroll, from);
    scroll = std::max(scroll, to - size);
    return std::clamp(scroll, std::min(low, 0.0), std::max(high - size, 0.0));
  };
  if (!hasFocus() && !Box().multiline) {
    scroll_.setX(0);
  } else {
    scroll_.setX(keep(scroll_.x(), layout.Left(), layout.Right(), room.width(), caret.left(),
                      caret.left() + kCaretWidth));
  }
  if (Box().multiline) {
    scroll_.setY(keep(scroll_.y(), 0, layout.Height(), room.height(), caret.top(), caret.bottom()));
  }
}

void EditBoxView::PaintGround(QPainter& painter) {
  const Style style = StyleOf();
  if (IsBare()) return;
  if (style.mainAmount) {
    paint::Box(painter, rect(), paint::kPanelRadius, palette::kDeep);
    return;
  }
  QColor fill = IsWritable() ? palette::kPanel : palette::kLockedField;
  if (Box().BackColor() != platform::kDefaultColor) fill = ToQt(Box().BackColor());
  QColor border = IsWritable() ? palette::kFieldBorder : palette::kPanelBorder;
  // A refused field shows it by its border as by its label.
  if (Box().label != nullptr && Box().label->ForeColor() == kRed) border = palette::kRefused;
  paint::Box(painter, rect(), paint::kFieldRadius, fill, border);
}

void EditBoxView::PaintText(QPainter& painter) {
  const Style style = StyleOf();
  const QPointF origin = Origin();
  const EditLayout& layout = LaidOut();
  const int start = UnitOf(Box().SelStart());
  const int end = UnitOf(Box().SelStart() + Box().SelLength());
  const bool active = hasFocus();
  if (composing_.isEmpty() && active) {
    for (const QRectF& part : layout.Area(start, end)) {
      painter.fillRect(part.translated(origin), IsWritable() ? kSelection : kQuietSelection);
    }
  }
  QColor ink = style.mainAmount ? palette::kPanel : palette::kText;
  if (Box().ForeColor() != platform::kDefaultColor) ink = ToQt(Box().ForeColor());
  painter.setPen(ink);
  const bool cut = !active && !Box().multiline && layout.Right() > TextBox().width() + 0.5;
  WordsCut(cut && !IsPassword());
  if (cut && !IsFigures()) {
    painter.setFont(FieldFont());
    paint::Words(painter, TextBox(), Qt::AlignLeft | Qt::AlignVCenter, Shown());
    return;
  }
  layout.Draw(painter, origin);
  if (!active) return;
  const int caret = UnitOf(Box().Caret());
  for (const QRectF& part : layout.Area(caret, caret + static_cast<int>(composing_.size()))) {
    painter.fillRect(QRectF(part.left(), part.bottom() - 1, part.width(), 1).translated(origin),
                     ink);
  }
  const QRectF line = layout.Caret(caret + static_cast<int>(composing_.size())).translated(origin);
  painter.fillRect(QRectF(line.left() - 0.5, line.top(), kCaretWidth, line.height()), ink);
}

void EditBoxView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintGround(painter);
  ShowCaret();
  painter.save();
  painter.setClipRect(Box().multiline ? QRectF(rect()).adjusted(2, 3, -2, -3)
                                      : TextBox().adjusted(-2, 1, 3, -1));
  PaintText(painter);
  painter.restore();
  PaintExtras(painter);
  // The list of an input method stands beside the caret: told once for all that came since.
  if (std::exchange(hasChanged_, false) && hasFocus()) updateMicroFocus();
}

}  // namespace desktop
