#include "desktop/views/ClickView.h"

#include <QMouseEvent>
#include <utility>

#include "platform/Input.h"

namespace desktop {

void ClickView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !HearsMouse()) return;
  pressed_ = inside_ = true;
  update();
}

void ClickView::mouseMoveEvent(QMouseEvent* event) {
  if (!pressed_ || inside_ == rect().contains(event->pos())) return;
  inside_ = !inside_;
  update();
}

void ClickView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool clicked = std::exchange(pressed_, false) && rect().contains(event->pos());
  update();
  if (clicked && Shows() != nullptr) platform::input::Click(*Shows());
}

}  // namespace desktop
