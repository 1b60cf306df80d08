#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace support {

/// The rows of an aligned table of texts: a line a row, cells parted by "|" and stripped of the
/// blanks around them. A cell in double quotes keeps what stands between them.
inline std::vector<std::vector<std::string>> Table(std::string_view text) {
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : base::Split(text, '\n')) {
    if (base::IsBlank(line)) continue;
    std::vector<std::string> cells;
    for (const std::string& part : base::Split(line, '|')) {
      std::string cell = base::Trim(part);
      if (cell.size() >= 2 && cell.front() == '"' && cell.back() == '"') {
        cell = cell.substr(1, cell.size() - 2);
      }
      cells.push_back(std::move(cell));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

/// What a computation comes to: its text, or "error N" when it fails.
template <class Compute>
std::string ResultOf(Compute compute) {
  try {
    return compute();
  } catch (const base::RuntimeError& error) {
    return "error " + std::to_string(error.Number());
  }
}

/// The shortest text from which exactly this double is read again, with a decimal point.
inline std::string Exact(double value) {
  char text[400];
  const auto end = std::to_chars(text, text + sizeof text, value);
  return {text, end.ptr};
}
/// The double that a test's table writes with a decimal point.
inline double FromExact(std::string_view text) {
  double value = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), value).ptr;
  return end == text.data() + text.size() ? value : throw base::RuntimeError(13, "bad table");
}
/// The amount of so many ten-thousandths, as a test's table writes them.
inline std::int64_t FromDigits(std::string_view text) {
  std::int64_t value = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), value).ptr;
  return end == text.data() + text.size() ? value : throw base::RuntimeError(13, "bad table");
}

/// Texts in one, parted by ", ": what a trace of events is compared as.
inline std::string Joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all.append(&text == texts.data() ? "" : ", ").append(text);
  return all;
}

}  // namespace support
