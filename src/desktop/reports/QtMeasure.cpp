#include "desktop/reports/QtMeasure.h"

#include <QFontDatabase>
#include <cmath>

#include "desktop/Convert.h"

namespace desktop::reports {
namespace {

constexpr int kTwipsPerPoint = 20;

const QString& Family() {
  static const QString kFamily = QFontDatabase::hasFamily(QStringLiteral("Liberation Sans"))
                                     ? QStringLiteral("Liberation Sans")
                                     : QStringLiteral("DejaVu Sans");
  return kFamily;
}

}  // namespace

QFont OnPaper(const platform::ReportFont& font) {
  QFont face(Family());
  face.setPixelSize(font.points * kTwipsPerPoint);
  face.setBold(font.bold);
  face.setItalic(font.italic);
  face.setHintingPreference(QFont::PreferNoHinting);
  return face;
}

const QFontMetricsF& QtMeasure::MetricsOf(const platform::ReportFont& font) const {
  const std::tuple key(font.points, font.bold, font.italic);
  const auto found = metrics_.find(key);
  if (found != metrics_.end()) return found->second;
  return metrics_.emplace(key, QFontMetricsF(OnPaper(font))).first->second;
}

std::int32_t QtMeasure::Width(std::string_view text, const platform::ReportFont& font) const {
  return static_cast<std::int32_t>(std::ceil(MetricsOf(font).horizontalAdvance(ToQt(text))));
}

std::int32_t QtMeasure::LineHeight(const platform::ReportFont& font) const {
  return static_cast<std::int32_t>(std::ceil(MetricsOf(font).lineSpacing()));
}

}  // namespace desktop::reports
