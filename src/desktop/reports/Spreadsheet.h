#pragma once

#include <string>

#include "platform/ReportTable.h"

namespace desktop::reports {

/// Writes a table as a spreadsheet (.xlsx) in which numbers are numbers and dates are dates, or as
/// text with semicolons (.csv), by the ending of the path. `path` holds the whole table, or what it
/// held before; std::runtime_error with a sentence for the operator when that fails.
void WriteTable(const platform::ReportTable& table, const std::string& path);

}  // namespace desktop::reports
