#include "platform/ReportTable.h"

#include <string_view>

#include "base/Text.h"

namespace platform {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kFormulaStarts = "=+-@\t\r\n";

bool IsText(const base::Value& value) {
  return value.Is<std::string>();
}

std::string CellOf(const base::Value& value) {
  std::string text = base::ToText(value);
  if (IsText(value) && !text.empty() && kFormulaStarts.find(text.front()) != std::string::npos) {
    text.insert(0, 1, '\'');
  }
  if (text.find_first_of(";\"\r\n") == std::string::npos) return text;
  return '"' + base::Replace(text, "\"", "\"\"") + '"';
}

}  // namespace

ReportTable TableOf(const DataReport& report) {
  ReportTable table{.title = report.Title(), .heads = {}, .rows = {}};
  for (const ReportColumn& column : report.columns) table.heads.push_back(column.title);
  if (table.heads.empty() || !report.DataSource) return table;
  base::ForEachRow(*report.DataSource, [&] {
    std::vector<base::Value>& row = table.rows.emplace_back();
    for (const ReportColumn& column : report.columns) {
      row.push_back(report.DataSource->Fields(column.field));
    }
  });
  return table;
}

std::string AsCsv(const ReportTable& table) {
  std::string text(kByteOrderMark);
  const auto append = [&](const auto& cells) {
    bool first = true;
    for (const auto& cell : cells) {
      if (!first) text += ';';
      first = false;
      text += CellOf(cell);
    }
    text += kLineEnd;
  };
  append(table.heads);
  for (const auto& row : table.rows) append(row);
  return text;
}

}  // namespace platform
