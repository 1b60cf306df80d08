#include "desktop/Convert.h"

#include <algorithm>
#include <cmath>

namespace desktop {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

int ToUnits(const QString& text, int characters) {
  int units = 0;
  for (; characters > 0 && units < text.size(); --characters) {
    const bool pair = text.at(units).isHighSurrogate() && units + 1 < text.size();
    units += pair ? 2 : 1;
  }
  return units;
}

int ToCharacters(const QString& text, int units) {
  int characters = 0;
  const int end = std::min(units, static_cast<int>(text.size()));
  for (int at = 0; at < end; ++characters) {
    const bool pair = text.at(at).isHighSurrogate() && at + 1 < text.size();
    at += pair ? 2 : 1;
  }
  return characters;
}

int ToPixels(std::int32_t twips) {
  return static_cast<int>(std::lround(twips / 15.0));
}

std::int32_t ToTwips(int pixels) {
  return pixels * 15;
}

QRect PixelRect(const platform::Control& control) {
  const std::int32_t left = control.Left();
  const std::int32_t top = control.Top();
  const QPoint from(ToPixels(left), ToPixels(top));
  const QPoint to(ToPixels(left + control.Width()), ToPixels(top + control.Height()));
  return {from, QSize(std::max(to.x() - from.x(), 0), std::max(to.y() - from.y(), 0))};
}

QColor ToQt(platform::Color color) {
  return QColor(color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff);
}

}  // namespace desktop
