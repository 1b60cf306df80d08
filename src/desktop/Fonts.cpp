#include "desktop/Fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace desktop::fonts {
namespace {

const QString& Family() {
  static const QString kFamily = QFontDatabase::hasFamily(QStringLiteral("Inter"))
                                     ? QStringLiteral("Inter")
                                     : QStringLiteral("DejaVu Sans");
  return kFamily;
}

double FigureAdvance(const QFontMetricsF& metrics) {
  double widest = 0;
  for (char digit = '0'; digit <= '9'; ++digit) {
    widest = std::max(widest, metrics.horizontalAdvance(QChar::fromLatin1(digit)));
  }
  return widest;
}

}  // namespace

QFont Sized(double pixels, QFont::Weight weight) {
  QFont font(Family());
  // Pixel sizes of a QFont are whole; points are not.
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const double dpi = screen == nullptr ? 96 : screen->logicalDotsPerInchY();
  font.setPointSizeF(pixels * 72 / dpi);
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

double figures::Advance(const QFont& font, QStringView text) {
  const QFontMetricsF metrics(font);
  const double figure = FigureAdvance(metrics);
  double width = 0;
  for (const QChar each : text) {
    width += each.isDigit() ? figure : metrics.horizontalAdvance(each);
  }
  return width;
}

void figures::Draw(QPainter& painter, QPointF baseline, QStringView text) {
  const QFontMetricsF metrics(painter.font());
  const double figure = FigureAdvance(metrics);
  for (const QChar each : text) {
    const double own = metrics.horizontalAdvance(each);
    const double step = each.isDigit() ? figure : own;
    painter.drawText(baseline + QPointF((step - own) / 2, 0), QString(each));
    baseline.rx() += step;
  }
}

}  // namespace desktop::fonts
