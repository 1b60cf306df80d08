#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"

namespace services {

/// A value for one place of a statement: a whole number, a text, or null. Money goes as whole
/// ten-thousandths, a truth value as 1 or 0, dates as "yyyy-mm-dd hh:mm:ss" or "yyyy-mm-dd".
class Param {
 public:
  Param() = default;
  Param(std::integral auto value) : value_(static_cast<std::int64_t>(value)) {}
  Param(base::Currency value) : value_(value.TenThousandths()) {}
  Param(base::DateTime moment);
  /// What is no UTF-8, and the character 0, become U+FFFD: no engine takes them.
  Param(std::string_view text);
  Param(const std::string& text) : Param(std::string_view(text)) {}
  Param(const char* text) : Param(std::string_view(text)) {}
  /// The date alone.
  static Param Date(base::DateTime day);

  bool IsNull() const { return value_.index() == 0; }
  /// Null when it is no number.
  const std::int64_t* Integer() const { return std::get_if<std::int64_t>(&value_); }
  /// Null when it is no text.
  const std::string* Text() const { return std::get_if<std::string>(&value_); }

 private:
  std::variant<std::monostate, std::int64_t, std::string> value_;
};

using Params = std::vector<Param>;

/// The moment of a "yyyy-mm-dd" text, with " hh:mm:ss" behind it or not; error 13 otherwise.
base::DateTime MomentOf(std::string_view text);

}  // namespace services
