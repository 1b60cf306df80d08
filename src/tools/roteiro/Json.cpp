#include "tools/roteiro/Json.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

namespace roteiro {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Point for the decimals, of which at least two are told.
std::string CurrencyText(base::Currency value) {
  std::string text = base::ToText(value);
  std::ranges::replace(text, ',', '.');
  const std::size_t point = text.find('.');
  if (point == std::string::npos) return text + ".00";
  return text.size() - point < 3 ? text + "0" : text;
}

base::Currency CurrencyOf(std::string_view text) {
  const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  const bool sound =
      !digits.empty() && IsDigit(digits.front()) && IsDigit(digits.back()) &&
      std::ranges::count(digits, '.') <= 1 &&
      std::ranges::all_of(digits, [](char c) { return IsDigit(c) || c == '.'; }) &&
      (digits.find('.') == std::string_view::npos || digits.size() - digits.find('.') <= 5);
  if (!sound) throw CannotDo("not a currency: \"" + std::string(text) + "\"");
  try {
    return base::ToCurrency(base::Replace(text, ".", ","));
  } catch (const base::RuntimeError&) {
    throw CannotDo("out of the range of a currency: " + std::string(text));
  }
}

std::string DateTimeText(base::DateTime value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d", value.Year(),
                value.Month(), value.Day(), value.Hour(), value.Minute(), value.Second());
  return text.data();
}

std::int32_t Int32Of(const Json& json) {
  // A number above the signed range is held unsigned.
  const bool fits = json.is_number_unsigned()
                        ? json.get<std::uint64_t>() <= std::numeric_limits<std::int32_t>::max()
                        : json.get<std::int64_t>() >= std::numeric_limits<std::int32_t>::min() &&
                              json.get<std::int64_t>() <= std::numeric_limits<std::int32_t>::max();
  if (!fits) {
    throw CannotDo("a whole number is 32-bit; write a larger one with a fraction: " + json.dump() +
                   ".0");
  }
  return json.get<std::int32_t>();
}

}  // namespace

Json ToJson(const base::Value& value) {
  struct Teller {
    Json operator()(base::Null) const { return nullptr; }
    Json operator()(base::Currency c) const { return {{"currency", CurrencyText(c)}}; }
    Json operator()(base::DateTime d) const { return {{"date", DateTimeText(d)}}; }
    Json operator()(bool b) const { return b; }
    Json operator()(std::int32_t n) const { return n; }
    Json operator()(double d) const { return d; }
    Json operator()(const std::string& text) const { return text; }
  };
  return std::visit(Teller(), static_cast<const base::Value::Variant&>(value));
}

base::Value ToValue(const Json& json) {
  if (json.is_null()) return {};
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_number_float()) return json.get<double>();
  if (json.is_number()) return Int32Of(json);
  if (json.is_string()) return json.get<std::string>();
  if (json.is_object() && json.size() == 1 && json.front().is_string()) {
    const auto text = json.front().get<std::string>();
    if (json.contains("currency")) return CurrencyOf(text);
    if (json.contains("date")) return ToDateTime(text);
  }
  throw CannotDo("not a value: " + json.dump());
}

base::DateTime ToDateTime(std::string_view text) {
  constexpr std::string_view kForm = "0000-00-00T00:00:00";
  const bool sound = (text.size() == kForm.size() || text.size() == 10) &&
                     std::ranges::equal(text, kForm.substr(0, text.size()), [](char c, char form) {
                       return form == '0' ? IsDigit(c) : c == form;
                     });
  const auto number = [&](std::size_t at, std::size_t count) {
    int value = 0;
    if (at < text.size()) {
      for (const char c : text.substr(at, count)) value = value * 10 + (c - '0');
    }
    return value;
  };
  try {
    if (sound) {
      return {number(0, 4),  number(5, 2),  number(8, 2),
              number(11, 2), number(14, 2), number(17, 2)};
    }
  } catch (const base::RuntimeError&) {
    // No such day or time: told below.
  }
  throw CannotDo("not a date and time such as 2026-11-22T14:30:00: \"" + std::string(text) + "\"");
}

}  // namespace roteiro
