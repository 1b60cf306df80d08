#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/DateTime.h"
#include "platform/ReportFill.h"
#include "platform/ReportPages.h"

namespace platform::reports {

/// What the codes in a label stand for.
struct Codes {
  std::size_t page = 1, pages = 1;
  base::DateTime now;
};

/// One printing of a section, laid out. Positions are from its upper left corner.
struct Block {
  std::int32_t height = 0;
  std::vector<PrintedText> texts;
  std::vector<PrintedRule> rules;
  PrintedSection said;
};

/// Whether a label of the section shows the number of its page, or how many there are.
bool ShowsPageNumber(const ReportSection& section);
bool ShowsPageCount(const ReportSection& section);

Block LayOut(const Filling& filling, const Codes& codes, const TextMeasure& measure);

/// How much of the block goes into that height without cutting a line in two; 0 for nothing.
std::int32_t WholeLines(const Block& block, std::int32_t height);
/// The height of the block down to the end of its first line; 1 at least.
std::int32_t FirstLine(const Block& block);
/// Takes the part above `height` off the block; frames are parted in two.
Block TakeUpper(Block& block, std::int32_t height);

}  // namespace platform::reports
