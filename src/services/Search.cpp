#include "services/Search.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace services {
namespace {

/// Takes `expected` off the front of the text, without regard to case; error 5 when it is not
/// there.
void Take(std::string_view& text, std::string_view expected) {
  if (base::Fold(text.substr(0, expected.size())) != base::Fold(expected)) {
    throw base::RuntimeError(base::Fault::kInvalidArgument);
  }
  text.remove_prefix(expected.size());
}

void SkipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
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
  SkipBlanks(condition);
  Take(condition, "WHERE");
  SkipBlanks(condition);
  const bool inBrackets = condition.starts_with('[');
  if (inBrackets) Take(condition, "[");
  Take(condition, column);
  if (inBrackets) Take(condition, "]");
  SkipBlanks(condition);
  Take(condition, "=");
  const std::string number = base::Trim(condition);
  std::int32_t code = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), code);
  if (error != std::errc{} || end != number.data() + number.size()) {
    throw base::RuntimeError(base::Fault::kInvalidArgument);
  }
  return code;
}

}  // namespace services
