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

std::string AsCsv(const ReportTable& table) {
  std::string text(kByteOrderMark);
  const auto append = [&](auto cell) {
    std::string_view parting;
    for (const ReportColumn& column : table.columns) {
      text.append(parting).append(CellOf(cell(column)));
      parting = ";";
    }
    text += kLineEnd;
  };
  append([](const ReportColumn& column) -> base::Value { return column.title; });
  base::ForEachRow(*table.rows, [&] {
    append([&](const ReportColumn& column) { return table.rows->Fields(column.field); });
  });
  return text;
}

}  // namespace platform
