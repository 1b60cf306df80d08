#include "desktop/views/Shape.h"

#include <QPainter>

#include "desktop/Convert.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"

namespace desktop {

ShapeView::ShapeView(platform::Shape& shape, QWidget& parent) : View(shape, parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  lower();
}

void ShapeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool own = Shows()->BackColor() != platform::kDefaultColor;
  if (height() <= 2 || width() <= 2) {
    painter.fillRect(rect(), own ? ToQt(Shows()->BackColor()) : palette::kPanelBorder);
  } else {
    const bool card = Shows()->look == platform::Look::kCard;
    QColor fill = card ? palette::kPanel : QColor();
    if (own) fill = ToQt(Shows()->BackColor());
    paint::Box(painter, rect(), paint::kPanelRadius, fill, palette::kPanelBorder);
  }
}

}  // namespace desktop
