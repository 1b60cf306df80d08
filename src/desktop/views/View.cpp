#include "desktop/views/View.h"

#include <QCursor>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Keys.h"
#include "desktop/Paint.h"
#include "platform/EditBox.h"
#include "platform/Form.h"
#include "platform/Input.h"
#include "platform/Label.h"
#include "platform/Screens.h"

namespace desktop {
namespace {

/// Events that a view without a control does not react to.
bool ConcernsControl(QEvent::Type type) {
  switch (type) {
    case QEvent::Paint:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::InputMethod:
    case QEvent::InputMethodQuery:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
    case QEvent::Resize:
    case QEvent::Show:
      return true;
    default:
      return false;
  }
}

}  // namespace

View::View(platform::Control& control, QWidget& parent) : QWidget(&parent), control_(&control) {
  setObjectName(ToQt(control.Name()));
  control.Observe(*this);
  if (control.label != nullptr) Listen(const_cast<platform::Label&>(*control.label));
  Place();
  Name();
}

View::~View() {
  if (control_ != nullptr) View::LetGo();
}

void View::LetGo() {
  if (control_ == nullptr) return;
  control_->Unobserve(*this);
  for (platform::Object* object : listened_) object->Unobserve(*this);
  listened_.clear();
  control_ = nullptr;
}

void View::Listen(platform::Object& object) {
  object.Observe(*this);
  listened_.push_back(&object);
}

double View::RingRadius() const {
  return paint::kFieldRadius;
}

void View::Place() {
  setGeometry(PixelRect(*control_));
  setVisible(control_->Visible());
}

void View::Name() {
  // What a field holds is its value and no name.
  std::string words;
  if (control_->label != nullptr) {
    words = control_->label->Caption();
  } else if (dynamic_cast<const platform::EditBox*>(control_) == nullptr) {
    words = control_->Words();
  }
  // A button with nothing but a picture is named by what the pointer says of it.
  if (words.empty()) words = control_->ToolTipText();
  QString name = ToQt(words);
  name.remove(u'*');
  setAccessibleName(name.trimmed());
}

QString View::Spoken() const {
  return control_ == nullptr ? QString() : ToQt(control_->Words());
}

void View::Changed(platform::Object& object, const platform::PropertyBase& property) {
  if (control_ == nullptr) return;
  if (&object == control_) {
    if (&property == &control_->Left || &property == &control_->Top ||
        &property == &control_->Width || &property == &control_->Height) {
      setGeometry(PixelRect(*control_));
    } else if (&property == &control_->Visible) {
      setVisible(control_->Visible());
    } else {
      Follow(property);
    }
  }
  const bool hasNameOfItsOwn = control_->label == nullptr && !IsEditing();
  if (&object != control_ || hasNameOfItsOwn || &property == &control_->ToolTipText) Name();
  update();
}

QString View::ToolTipAt(const QPoint&) const {
  const QString own = ToQt(control_->ToolTipText());
  return own.isEmpty() && cut_ ? ToQt(control_->Words()).trimmed() : own;
}

bool View::TakeKey(QKeyEvent& event) {
  const std::vector<platform::KeyStroke> strokes = Strokes(event);
  for (const platform::KeyStroke& stroke : strokes) {
    // An earlier stroke of the same event may have closed the screen.
    if (control_ != nullptr) platform::input::Press(control_->OwnerForm(), stroke);
  }
  return !strokes.empty();
}

bool View::event(QEvent* event) {
  if (control_ == nullptr && ConcernsControl(event->type())) return true;
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<QHelpEvent&>(*event);
    const QString text = ToolTipAt(help.pos());
    if (text.isEmpty()) {
      QToolTip::hideText();
    } else {
      QToolTip::showText(help.globalPos(), text, this);
    }
    return true;
  }
  return QWidget::event(event);
}

void View::keyPressEvent(QKeyEvent* event) {
  if (IsHeldCommand(*event, IsEditing()) || TakeKey(*event)) {
    event->accept();
  } else {
    event->ignore();
  }
}

void View::focusInEvent(QFocusEvent*) {
  // The module moves the focus; a screen reader may move it here by itself.
  if (!control_->HasFocus() && control_->TakesFocus()) platform::input::Focus(*control_);
  update();
}

void View::focusOutEvent(QFocusEvent*) {
  update();
}

bool View::IsWarm() const {
  return IsUsable() && platform::screens::IsReachable(control_->OwnerForm());
}

bool View::IsHovered() const {
  return underMouse() && rect().contains(mapFromGlobal(QCursor::pos())) && IsWarm();
}

}  // namespace desktop
