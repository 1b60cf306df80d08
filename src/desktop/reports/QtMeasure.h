#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <map>
#include <tuple>

#include "platform/ReportPages.h"

namespace desktop::reports {

/// The face of printed text, in the size that it has where a twip is one unit: 1440 units an inch.
/// A narrow face for paper with figures of one width, so that amounts stand in columns.
QFont OnPaper(const platform::ReportFont& font);

/// Measures printed text at the one resolution that preview, PDF and printer all lay out with:
/// what is seen is what is printed.
class QtMeasure final : public platform::TextMeasure {
 public:
  std::int32_t Width(std::string_view text, const platform::ReportFont& font) const override;
  std::int32_t LineHeight(const platform::ReportFont& font) const override;

 private:
  const QFontMetricsF& MetricsOf(const platform::ReportFont& font) const;

  /// A report has a handful of fonts and thousands of words.
  mutable std::map<std::tuple<std::int16_t, bool, bool>, QFontMetricsF> metrics_;
};

}  // namespace desktop::reports
