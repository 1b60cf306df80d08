#include "desktop/InputGate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <utility>

#include "desktop/Loops.h"

namespace desktop {
namespace {

bool IsPointerEvent(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
      return true;
    default:
      return false;
  }
}

bool IsTyping(const QEvent& event) {
  return event.type() == QEvent::KeyPress || event.type() == QEvent::InputMethod;
}

bool BeginsAct(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::KeyPress ||
         event.type() == QEvent::Wheel;
}

}  // namespace

InputGate::InputGate(const Loops& loops) : loops_(loops) {
  QCoreApplication::instance()->installEventFilter(this);
}

InputGate::~InputGate() {
  if (QCoreApplication::instance() != nullptr) {
    QCoreApplication::instance()->removeEventFilter(this);
  }
}

void InputGate::Release(QWidget& box) {
  std::erase_if(boxes_, [&](const auto& each) { return each == nullptr || each == &box; });
}

QWidget* InputGate::Box() const {
  return boxes_.empty() ? nullptr : boxes_.back().data();
}

bool InputGate::IsBarred(const QObject& receiver) const {
  const QWidget* const box = Box();
  if (box == nullptr || !receiver.isWidgetType()) return false;
  const auto& widget = static_cast<const QWidget&>(receiver);
  return &widget != box && !box->isAncestorOf(&widget) && !widget.isAncestorOf(box);
}

bool InputGate::DropsPress(const QMouseEvent& event) {
  const QStyleHints* const hints = QGuiApplication::styleHints();
  const QPoint at = event.globalPosition().toPoint();
  const bool again = sincePress_.isValid() &&
                     sincePress_.elapsed() < hints->mouseDoubleClickInterval() &&
                     (at - pressedAt_).manhattanLength() <= 2 * hints->mouseDoubleClickDistance();
  // One press is seen several times on its way from window to widget; only a screen that came or
  // went in between makes it the second half of a double click that must not fall through.
  const bool drops = again && changedSincePress_;
  sincePress_.start();
  pressedAt_ = at;
  changedSincePress_ = drops;
  return drops;
}

bool InputGate::Defers(const QEvent& event) {
  // Only the event being delivered, not those of a wait that it starts.
  if (std::exchange(delivering_, false) || !IsTyping(event)) return false;
  if (!loops_.IsEnding() && deferred_.empty()) return false;
  if (deferred_.empty()) {
    QMetaObject::invokeMethod(
        this, [this] { DeliverDeferred(); }, Qt::QueuedConnection);
  }
  deferred_.emplace_back(event.clone());
  return true;
}

void InputGate::DeliverDeferred() {
  if (deferred_.empty()) return;
  const std::unique_ptr<QEvent> event = std::move(deferred_.front());
  deferred_.pop_front();
  // What this key starts may wait for the operator: the rest arrives there.
  if (!deferred_.empty()) {
    QMetaObject::invokeMethod(
        this, [this] { DeliverDeferred(); }, Qt::QueuedConnection);
  }
  QWidget* const focus = QApplication::focusWidget();
  if (focus == nullptr) return;
  delivering_ = true;
  QCoreApplication::sendEvent(focus, event.get());
  delivering_ = false;
}

bool InputGate::eventFilter(QObject* receiver, QEvent* event) {
  if (!receiver->isWidgetType() && !receiver->isWindowType()) return false;
  const bool pointer = IsPointerEvent(*event);
  if (!pointer && !IsTyping(*event)) return false;
  if (IsBarred(*receiver)) {
    if (event->type() == QEvent::MouseButtonPress) QApplication::beep();
    return true;
  }
  if (Defers(*event)) return true;
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
    dropsRelease_ = DropsPress(static_cast<QMouseEvent&>(*event));
    if (dropsRelease_) return true;
  } else if (event->type() == QEvent::MouseButtonRelease && dropsRelease_) {
    return true;
  }
  if (onAct && BeginsAct(*event)) onAct();
  return false;
}

}  // namespace desktop
