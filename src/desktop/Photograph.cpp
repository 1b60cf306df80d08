#include "desktop/Photograph.h"

#include <QApplication>
#include <QPainter>

namespace desktop {

QPixmap Photograph(QWidget& window) {
  QPixmap picture = window.grab();
  QPainter painter(&picture);
  for (QWidget* other : QApplication::topLevelWidgets()) {
    if (other == &window || !other->isVisible() || other->size().isEmpty()) continue;
    painter.drawPixmap(other->mapToGlobal(QPoint(0, 0)) - window.mapToGlobal(QPoint(0, 0)),
                       other->grab());
  }
  return picture;
}

}  // namespace desktop
