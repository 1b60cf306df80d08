#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <variant>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "base/Numbers.h"

namespace base {

struct Null {
  friend bool operator==(Null, Null) = default;
};

/// The value of a field: what a record, a property or a service argument holds.
class Value
    : public std::variant<Null, bool, std::int32_t, double, Currency, DateTime, std::string> {
 public:
  using Variant = std::variant<Null, bool, std::int32_t, double, Currency, DateTime, std::string>;
  using Variant::Variant;
  Value() = default;
  Value(const char* text) : Variant(std::string(text)) {}
  Value(std::string_view text) : Variant(std::string(text)) {}

  template <class T>
  bool Is() const {
    return std::holds_alternative<T>(*this);
  }
};

bool IsNull(const Value& value);

namespace detail {
std::string TextOf(const Value& value);
double DoubleOf(const Value& value);
Currency CurrencyOf(const Value& value);
std::int32_t Int32Of(const Value& value);
bool BoolOf(const Value& value);
DateTime DateOf(const Value& value);
}  // namespace detail

// Readers of a field, for a Value alone: a plain text or number has its own conversions in
// Numbers.h and DateTime.h. A null reads as an empty text, zero or false. Texts are read in the
// Brazilian form; what cannot be read is error 13, out of range error 6.

std::string ToText(const std::same_as<Value> auto& value) {
  return detail::TextOf(value);
}
double ToDouble(const std::same_as<Value> auto& value) {
  return detail::DoubleOf(value);
}
Currency ToCurrency(const std::same_as<Value> auto& value) {
  return detail::CurrencyOf(value);
}
std::int32_t ToInt32(const std::same_as<Value> auto& value) {
  return detail::Int32Of(value);
}
/// True for a true boolean and for a number other than zero; a text reads "True", "False" or as a
/// number.
bool ToBool(const std::same_as<Value> auto& value) {
  return detail::BoolOf(value);
}
DateTime ToDate(const std::same_as<Value> auto& value) {
  return detail::DateOf(value);
}
/// Val of the field's text.
double Val(const std::same_as<Value> auto& value) {
  return Val(detail::TextOf(value));
}

}  // namespace base
