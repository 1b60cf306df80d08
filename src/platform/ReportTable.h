#pragma once

#include <string>
#include <vector>

#include "base/Record.h"
#include "platform/DataReport.h"

namespace platform {

/// The rows of a report as a table, to be saved for a spreadsheet. The rows are the report's own.
struct ReportTable {
  std::vector<ReportColumn> columns;  ///< None for a report that is no table.
  base::RecordSetPtr rows;
};

inline ReportTable TableOf(const DataReport& report) {
  return {report.columns, report.DataSource};
}

/// UTF-8 with its mark, lines ended by CR and LF, cells parted by semicolons, decimals by a comma:
/// what spreadsheets of this country open with a double click. A cell of text that a spreadsheet
/// would take for a formula (it begins with = + - @, a tab or a line break) gets an apostrophe in
/// front; numbers and dates are never such text. Error 9 for a field that the rows do
/// not have.
std::string AsCsv(const ReportTable& table);

}  // namespace platform
