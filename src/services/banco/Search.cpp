#include "services/banco/Search.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace services {
namespace {

/// Takes `expected` off the front of the text, without regard to case; false when it is not there.
bool Take(std::string_view& text, std::string_view expected) {
  if (base::Fold(text.substr(0, expected.size())) != base::Fold(expected)) return false;
  text.remove_prefix(expected.size());
  return true;
}

/// Whether there were any.
bool SkipBlanks(std::string_view& text) {
  const auto blanks = std::min(text.find_first_not_of(' '), text.size());
  text.remove_prefix(blanks);
  return blanks > 0;
}

/// What stands behind "WHERE column =" in a condition, without blanks around.
std::optional<std::string> ComparedIn(std::string_view condition, std::string_view column) {
  SkipBlanks(condition);
  if (!Take(condition, "WHERE")) return std::nullopt;
  const bool isParted = SkipBlanks(condition);
  const bool inBrackets = Take(condition, "[");
  if (!isParted && !inBrackets) return std::nullopt;
  if (!Take(condition, column) || (inBrackets && !Take(condition, "]"))) return std::nullopt;
  SkipBlanks(condition);
  if (!Take(condition, "=")) return std::nullopt;
  return base::Trim(condition);
}

}  // namespace

std::string SearchForm(std::string_view name) {
  std::string form;
  for (const std::string& word : base::Split(base::Fold(name), ' ')) {
    if (word.empty()) continue;
    if (!form.empty()) form += ' ';
    form += word;
  }
  return form;
}

std::string SearchForm(std::string_view nickname, std::string_view name) {
  return SearchForm(nickname).append("\n").append(SearchForm(name));
}

std::string ComputerForm(std::string_view name) {
  return base::Upper(base::Trim(name));
}

std::optional<std::int32_t> CodeIn(std::string_view text) {
  const std::string digits = base::Trim(text);
  std::int32_t code = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code);
  const bool isCode = error == std::errc{} && end == digits.data() + digits.size() && code > 0;
  return isCode ? std::optional(code) : std::nullopt;
}

std::optional<std::int32_t> CodeIn(double code) {
  const bool isCode =
      code >= 1 && code <= std::numeric_limits<std::int32_t>::max() && code == std::floor(code);
  return isCode ? std::optional(static_cast<std::int32_t>(code)) : std::nullopt;
}

std::int32_t CodeInCondition(std::string_view condition, std::string_view column) {
  if (const auto number = ComparedIn(condition, column)) {
    std::int32_t code = 0;
    const auto [end, error] =
        std::from_chars(number->data(), number->data() + number->size(), code);
    if (error == std::errc{} && end == number->data() + number->size()) return code;
  }
  constexpr std::size_t kShown = 100;
  throw base::RuntimeError(static_cast<std::int32_t>(base::Fault::kInvalidArgument),
                           "A condição '" + base::Left(condition, kShown) +
                               "' não é aceita; ela deve ter a forma 'WHERE " +
                               std::string(column) + " = número'. Avise o suporte.");
}

}  // namespace services
