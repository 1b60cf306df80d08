#pragma once

#include <string>

#include "base/Currency.h"

namespace base {

/// A number as its decimal digits, which is what masks and rounding to places work on: the digits
/// are those a reader sees, not those of a binary fraction.
class Decimal {
 public:
  enum class Ties { kToEven, kAwayFromZero };

  /// The value at its 15 significant digits; error 6 when it is not finite.
  static Decimal Of(double value);
  static Decimal Of(Currency value);

  /// The value with at most `decimals` decimals; error 5 when that is negative.
  Decimal Rounded(int decimals, Ties ties) const;
  /// The text with at least `integers` integer digits and exactly `decimals` decimals (which must
  /// hold the whole value), comma for the decimals; no minus sign before zero.
  std::string WithDecimals(int integers, int decimals) const;
  /// The text with as many decimals as the value has.
  std::string ToText() const;
  /// Error 6 when 15 digits round the value out of range.
  double ToDouble() const;

 private:
  int Decimals() const;

  bool negative_ = false;
  std::string digits_;  ///< Without leading or trailing zeros; empty for zero.
  int point_ = 0;       ///< How many digits stand before the comma; may be negative.

  void Normalise();
};

}  // namespace base
