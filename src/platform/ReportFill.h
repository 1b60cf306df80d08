#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "platform/DataReport.h"

/// The steps from a report to its pages: its bands are filled from the rows, each is laid out as a
/// block, and the blocks are put on pages.
namespace platform::reports {

/// One printing of a section.
struct Filling {
  const ReportSection* section = nullptr;
  std::size_t row = 0;             ///< The row that it belongs to, counted from 0.
  std::vector<std::string> words;  ///< For each control what its field or sum says.
};

struct Fillings {
  /// All but the bands of the pages, in the order in which they are printed.
  std::deque<Filling> body;
  /// How many of the first of these are the report's headers.
  std::size_t headers = 0;
  /// The headers and footers of a page that begins at that row; one entry serves all rows where
  /// they show no field.
  std::deque<std::vector<Filling>> pageBands;

  const std::vector<Filling>& PageBandsAt(std::size_t row) const {
    return pageBands[row < pageBands.size() ? row : 0];
  }
};

/// Goes through the rows once, from the first to the last. A field in a header is that of the first
/// row of its group or page, in a footer that of the last one of its group; a page's footer shows
/// what its header would. Hidden sections and controls read nothing, but that a hidden section's
/// group begins and ends where it would.
Fillings Fill(const DataReport& report);

}  // namespace platform::reports
