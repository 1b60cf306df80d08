#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/DateTime.h"
#include "platform/DataReport.h"

/// A report laid out on its paper, ready to be painted or told as text.
namespace platform {

/// How wide and high text is, in twips: the renderer's own fonts, or none.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual std::int32_t Width(std::string_view text, const ReportFont& font) const = 0;
  virtual std::int32_t LineHeight(const ReportFont& font) const = 0;
};

/// Text of even characters: half as wide as high, for runs without a display.
class PlainMeasure final : public TextMeasure {
 public:
  std::int32_t Width(std::string_view text, const ReportFont& font) const override;
  std::int32_t LineHeight(const ReportFont& font) const override;
};

/// One line of text on a page, in twips from the page's upper left corner. It fits into its width;
/// what is aligned to the right and too wide for its control has got a width to the left.
struct PrintedText {
  std::int32_t left = 0, top = 0, width = 0, height = 0;
  std::string text;
  ReportFont font;
  ReportAlign align = ReportAlign::kLeft;
};

/// A line, the frame of its place, or the place filled.
struct PrintedRule {
  enum class Kind { kLine, kBox, kBar };
  std::int32_t left = 0, top = 0, width = 0, height = 0;
  Kind kind = Kind::kLine;
};

struct ReportPage {
  std::int32_t width = 0, height = 0;
  std::vector<PrintedText> texts;
  std::vector<PrintedRule> rules;
};

/// A section as it was printed once: the names of its visible labels, texts and sums with what they
/// say in full, line breaks as "\n".
struct PrintedSection {
  std::string name;
  std::vector<std::pair<std::string, std::string>> controls;
};

struct ReportPages {
  std::string name, title;
  Paper paper;
  std::vector<ReportPage> pages;
  std::vector<PrintedSection> sections;  ///< In the order printed, where they are told.
};

/// Whether the sections are told apart from the pages, which costs a long report much memory.
enum class Telling { kSections, kPagesAlone };

/// Lays a report out, `now` being what its dates say. The header of the report comes first, above
/// that of the page, which stands on every page like its footer: at the foot of a sheet, right
/// below the rest on a roll. A section that does not fit goes to the next page, one that is higher
/// than a page is broken between its lines. A group's header is not left alone at the foot of a
/// page. Moves the cursor of the rows behind the last one. Error 9 for a field that the rows do not
/// have, 13 for a sum over what is no number.
ReportPages Compose(const DataReport& report, const TextMeasure& measure, base::DateTime now,
                    Telling telling = Telling::kSections);

/// Each page as plain text, placed on a grid of even characters: columns stay columns, a flat line
/// or the edge of a frame is a row of "-". A column is as wide as PlainMeasure has the smallest
/// font of the report: with 9 points an A4 sheet has 113 between its margins, the roll 45. Every
/// line ends in "\n"; empty space is one empty line.
std::vector<std::string> AsText(const ReportPages& report);

}  // namespace platform
