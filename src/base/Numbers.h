#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"

/// Numbers and texts in the Brazilian form, whatever the machine's locale. Three readings of a text
/// exist and are not interchangeable: as a double, as a currency, and by Val.
namespace base {

/// Blanks around, one leading sign, digits; points between the integer digits are skipped; one
/// comma for the decimals. Anything else, the empty text included, is error 13; out of range,
/// error 6.
double ToDouble(std::string_view text);
/// The same text form as a currency; more than four decimals round half to even.
Currency ToCurrency(std::string_view text);
/// True exactly when ToDouble(text) succeeds.
bool IsNumeric(std::string_view text);
/// The longest numeric prefix with the point as decimal sign, blanks skipped, sign and exponent
/// allowed; it stops at a comma. 0 when there is none; never fails.
double Val(std::string_view text);
/// Val of a text in the Brazilian form, its points removed and its comma made a point.
double ValOfNormalised(std::string_view text);

double ToDouble(Currency value);
/// Rounded half to even at the fourth decimal, as the 15 significant digits of the value read where
/// they reach that far; error 6 out of range.
Currency ToCurrency(double value);
Currency ToCurrency(std::int32_t value);

/// Rounded half to even; error 6 out of range.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);
/// Rounded half to even to `decimals` places, as the 15 significant digits of the value read; error
/// 5 for a negative count of places, error 6 out of range.
double Round(double value, int decimals);
Currency Round(Currency value, int decimals);

/// At most 15 significant digits, decimal comma, no thousands.
std::string ToText(double value);
/// As many decimals as needed, at most four, decimal comma, no thousands.
std::string ToText(Currency value);
std::string ToText(std::integral auto value) {
  return std::to_string(value);
}
/// "True" or "False".
std::string ToText(bool value);

inline constexpr std::string_view kMoneyMask = "#,##0.00";
inline constexpr std::string_view kWeightMask = "#,##0.000";

/// The number through a mask such as "#,##0.00", "0", "#,##.00" or "00000000.000", rounded half
/// away from zero (a double as its 15 significant digits); a comma for the decimals, points for the
/// thousands. A value that rounds to zero carries no minus sign.
std::string Format(double value, std::string_view mask);
std::string Format(Currency value, std::string_view mask);
inline std::string FormatMoney(double value) {
  return Format(value, kMoneyMask);
}
inline std::string FormatMoney(Currency value) {
  return Format(value, kMoneyMask);
}

}  // namespace base
