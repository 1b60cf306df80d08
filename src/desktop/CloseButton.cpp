#include "desktop/CloseButton.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"

namespace desktop {

CloseButton::CloseButton(QWidget& parent, std::function<void()> onClick)
    : QWidget(&parent), onClick_(std::move(onClick)) {
  resize(kSide, kSide);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(QStringLiteral("Fechar"));
  setToolTip(QStringLiteral("Fechar"));
}

void CloseButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (pressed_ || underMouse()) {
    paint::Box(painter, rect(), paint::kFieldRadius,
               pressed_ ? palette::kPressed : palette::kHover);
  }
  icons::Draw(painter, "close", QRectF(rect()).adjusted(7, 7, -7, -7), palette::kQuietText);
}

void CloseButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = true;
  update();
}

void CloseButton::mouseReleaseEvent(QMouseEvent* event) {
  const bool clicked = std::exchange(pressed_, false) && rect().contains(event->pos());
  update();
  if (clicked) onClick_();
}

}  // namespace desktop
