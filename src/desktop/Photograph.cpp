#include "desktop/Photograph.h"

#include <QApplication>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <vector>

namespace desktop {
namespace {

constexpr std::size_t kColours = 256;

/// The colours of a picture, the most frequent ones first.
std::vector<QRgb> ColoursOf(const QImage& picture) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  std::vector<QRgb> colours(counts.keyBegin(), counts.keyEnd());
  std::ranges::sort(colours, [&](QRgb a, QRgb b) {
    return counts[a] != counts[b] ? counts[a] > counts[b] : a < b;
  });
  return colours;
}

int Distance(QRgb a, QRgb b) {
  const int red = qRed(a) - qRed(b);
  const int green = qGreen(a) - qGreen(b);
  const int blue = qBlue(a) - qBlue(b);
  return red * red + green * green + blue * blue;
}

}  // namespace

bool SaveSmall(const QPixmap& picture, const QString& path) {
  const QImage from = picture.toImage().convertToFormat(QImage::Format_RGB32);
  const std::vector<QRgb> colours = ColoursOf(from);
  const auto end =
      colours.begin() + static_cast<std::ptrdiff_t>(std::min(colours.size(), kColours));
  QHash<QRgb, uint> places;
  for (const QRgb colour : colours) {
    const auto nearest = std::min_element(colours.begin(), end, [&](QRgb a, QRgb b) {
      return Distance(a, colour) < Distance(b, colour);
    });
    places[colour] = static_cast<uint>(nearest - colours.begin());
  }
  QImage to(from.size(), QImage::Format_Indexed8);
  to.setColorTable(QList<QRgb>(colours.begin(), end));
  for (int y = 0; y < from.height(); ++y) {
    for (int x = 0; x < from.width(); ++x) to.setPixel(x, y, places[from.pixel(x, y)]);
  }
  constexpr int kSmallest = 0;
  return to.save(path, "PNG", kSmallest);
}

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
