#include "services/banco/Param.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace services {
namespace {

std::string Printed(const char* mask, auto... numbers) {
  std::array<char, 64> text{};
  const int length = std::snprintf(text.data(), text.size(), mask, numbers...);
  return std::string(text.data(), static_cast<std::size_t>(length));
}

std::string DateText(base::DateTime day) {
  return Printed("%04d-%02d-%02d", day.Year(), day.Month(), day.Day());
}

bool IsPlain(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c > 0; });
}

/// The number in `count` digits from `at` on; error 13 when they are no digits.
int DigitsAt(std::string_view text, std::size_t at, std::size_t count) {
  int number = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    if (i >= text.size() || text[i] < '0' || text[i] > '9') {
      throw base::RuntimeError(base::Fault::kTypeMismatch);
    }
    number = number * 10 + (text[i] - '0');
  }
  return number;
}

}  // namespace

Param::Param(base::DateTime moment)
    : value_(DateText(moment) +
             Printed(" %02d:%02d:%02d", moment.Hour(), moment.Minute(), moment.Second())) {}

Param::Param(std::string_view text) {
  if (IsPlain(text)) {
    value_ = std::string(text);
    return;
  }
  std::string clean;
  clean.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = base::TakeCharacter(text);
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool isOutside = character == 0 || character > 0x10FFFF || isSurrogate;
    base::AppendCharacter(clean, isOutside ? U'\uFFFD' : character);
  }
  value_ = std::move(clean);
}

Param Param::Date(base::DateTime day) {
  return Param(DateText(day));
}

base::DateTime MomentOf(std::string_view text) {
  constexpr std::size_t kDateLength = 10;
  const int year = DigitsAt(text, 0, 4);
  const int month = DigitsAt(text, 5, 2);
  const int day = DigitsAt(text, 8, 2);
  if (text.size() <= kDateLength) return {year, month, day};
  return {year, month, day, DigitsAt(text, 11, 2), DigitsAt(text, 14, 2), DigitsAt(text, 17, 2)};
}

}  // namespace services
