#pragma once

#include <string>
#include <vector>

#include "base/Value.h"
#include "platform/DataReport.h"

namespace platform {

/// The rows of a report as a table, to be saved for a spreadsheet.
struct ReportTable {
  std::string title;
  std::vector<std::string> heads;
  std::vector<std::vector<base::Value>> rows;  ///< One value a head.
};

/// Empty heads for a report that is no table. Error 9 for a field that its rows do not have.
ReportTable TableOf(const DataReport& report);

/// UTF-8 with its mark, lines ended by CR and LF, cells parted by semicolons, decimals by a comma:
/// what spreadsheets of this country open with a double click. A cell of text that a spreadsheet
/// would take for a formula (it begins with = + - @, a tab or a line break) gets an apostrophe in
/// front; numbers and dates are never such text.
std::string AsCsv(const ReportTable& table);

}  // namespace platform
