#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ReportPages.h"

namespace platform::reports {

/// The lines that a text has by itself: parted at "\n", "\r\n" or "\r", without blanks at their
/// ends; none for an empty text.
std::vector<std::string> OwnLines(std::string_view text);

/// Brings lines of text into a width, between whole characters only.
class LineFitter {
 public:
  LineFitter(const TextMeasure& measure, const ReportFont& font, std::int32_t width)
      : measure_(measure), font_(font), width_(width) {}

  /// Appends the line in pieces that fit, broken at blanks. A word that is too wide by itself is
  /// broken where it must, or stays whole without `breakWords`.
  void Wrap(std::string_view line, bool breakWords, std::vector<std::string>& pieces) const;
  /// The line, or as much of it as fits with an ellipsis. With `goesOn` it gets one in any case.
  std::string Cut(std::string_view line, bool goesOn) const;

 private:
  bool Fits(std::string_view text) const { return measure_.Width(text, font_) <= width_; }
  std::size_t LongestStart(std::string_view text, std::string_view end) const;

  const TextMeasure& measure_;
  const ReportFont& font_;
  std::int32_t width_;
};

}  // namespace platform::reports
