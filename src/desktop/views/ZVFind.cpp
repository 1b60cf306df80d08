#include "desktop/views/ZVFind.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <utility>

#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Input.h"

namespace desktop {
namespace {

constexpr double kButtonWidth = 32;

}  // namespace

ZVFindView::ZVFindView(platform::ZVFind& find, QWidget& parent) : EditBoxView(find, parent) {
  setMouseTracking(true);
}

QRectF ZVFindView::ButtonBox() const {
  return QRectF(rect()).adjusted(width() - kButtonWidth, 0, 0, 0);
}

QRectF ZVFindView::TextBox() const {
  return QRectF(rect()).adjusted(9, 0, -kButtonWidth - 5, 0);
}

void ZVFindView::PaintExtras(QPainter& painter) {
  const QRectF box = ButtonBox();
  const bool warm = IsWarm();
  if (warm && (hovered_ || pressed_)) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(paint::Outline(box.adjusted(0, 1, -1, -1), paint::kFieldRadius - 1,
                                    {.topLeft = false, .bottomLeft = false}),
                     pressed_ ? palette::kPressed : palette::kPale);
  }
  painter.fillRect(QRectF(box.left(), 1, 1, height() - 2), palette::kPanelBorder);
  icons::Draw(painter, "magnifier", QRectF(box.center() - QPointF(8, 8), QSizeF(16, 16)),
              IsUsable() ? palette::kAccent : palette::kPaleText);
}

void ZVFindView::mousePressEvent(QMouseEvent* event) {
  if (!ButtonBox().contains(event->position())) return EditBoxView::mousePressEvent(event);
  if (event->button() != Qt::LeftButton) return;
  pressed_ = true;
  update();
}

void ZVFindView::mouseMoveEvent(QMouseEvent* event) {
  const bool over = ButtonBox().contains(event->position());
  if (over != hovered_) {
    hovered_ = over;
    setCursor(over ? Qt::ArrowCursor : Pointer());
    update();
  }
  if (!pressed_) EditBoxView::mouseMoveEvent(event);
}

void ZVFindView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) {
    return EditBoxView::mouseReleaseEvent(event);
  }
  update();
  if (ButtonBox().contains(event->position())) platform::input::Click(*Shows());
}

void ZVFindView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!ButtonBox().contains(event->position())) EditBoxView::mouseDoubleClickEvent(event);
}

void ZVFindView::leaveEvent(QEvent*) {
  hovered_ = false;
  update();
}

}  // namespace desktop
