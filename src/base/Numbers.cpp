#include "base/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "base/Decimal.h"
#include "base/RuntimeError.h"

namespace base {
namespace {

__extension__ using Wide = __int128;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// A number in the Brazilian form taken apart: its sign, and its digits without separators.
struct Brazilian {
  bool negative = false;
  std::string integer, fraction;
};

std::optional<Brazilian> Parse(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  Brazilian number;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    number.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  const std::size_t comma = std::min(text.find(','), text.size());
  for (std::size_t i = 0; i < comma; ++i) {
    if (IsDigit(text[i])) {
      number.integer += text[i];
    } else if (text[i] != '.' || number.integer.empty() || i + 1 == comma) {
      return std::nullopt;
    }
  }
  for (std::size_t i = comma + 1; i < text.size(); ++i) {
    if (!IsDigit(text[i])) return std::nullopt;
    number.fraction += text[i];
  }
  if (number.integer.empty() && number.fraction.empty()) return std::nullopt;
  return number;
}

/// Whether a number that does not fit a double lies too near to zero rather than too far from it.
bool IsTiny(std::string_view number) {
  const std::size_t exponent = number.find_first_of("eE");
  if (exponent != std::string_view::npos) return number[exponent + 1] == '-';
  return number.substr(0, number.find('.')).find_first_not_of("-0") == std::string_view::npos;
}

std::optional<double> ReadDouble(const Brazilian& number) {
  const std::string plain = (number.negative ? "-" : "") +
                            (number.integer.empty() ? "0" : number.integer) + '.' +
                            (number.fraction.empty() ? "0" : number.fraction);
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error == std::errc::result_out_of_range) {
    return IsTiny(plain) ? std::optional<double>(0.0) : std::nullopt;
  }
  return value;
}

double RoundedToWhole(double value, double lowest, double highest) {
  const double whole = std::nearbyint(value);
  if (!(whole >= lowest && whole <= highest)) throw RuntimeError(Fault::kOverflow);
  return whole;
}

}  // namespace

double ToDouble(std::string_view text) {
  const auto number = Parse(text);
  if (!number) throw RuntimeError(Fault::kTypeMismatch);
  const auto value = ReadDouble(*number);
  if (!value) throw RuntimeError(Fault::kOverflow);
  return *value;
}

bool IsNumeric(std::string_view text) {
  const auto number = Parse(text);
  return number && ReadDouble(*number);
}

Currency ToCurrency(std::string_view text) {
  const auto number = Parse(text);
  if (!number) throw RuntimeError(Fault::kTypeMismatch);
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  Wide magnitude = 0;
  for (const char digit : number->integer) {
    magnitude = magnitude * 10 + (digit - '0');
    if (magnitude > kMost) throw RuntimeError(Fault::kOverflow);
  }
  constexpr std::size_t kDecimals = 4;
  const std::string& fraction = number->fraction;
  for (std::size_t i = 0; i < kDecimals; ++i) {
    magnitude = magnitude * 10 + (i < fraction.size() ? fraction[i] - '0' : 0);
  }
  if (fraction.size() > kDecimals) {
    const bool more = fraction.find_first_not_of('0', kDecimals + 1) != std::string::npos;
    const char next = fraction[kDecimals];
    if (next > '5' || (next == '5' && (more || magnitude % 2 != 0))) ++magnitude;
  }
  if (magnitude > Wide{kMost} + (number->negative ? 1 : 0)) throw RuntimeError(Fault::kOverflow);
  return Currency::FromTenThousandths(
      static_cast<std::int64_t>(number->negative ? -magnitude : magnitude));
}

double Val(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') plain += c;
  }
  const char* begin = plain.data();
  const char* const end = begin + plain.size();
  if (begin != end && *begin == '+') ++begin;
  // A second sign, or the words for infinity that the library reads, are no number.
  const char* first = begin != end && *begin == '-' && begin == plain.data() ? begin + 1 : begin;
  if (first == end || (!IsDigit(*first) && *first != '.')) return 0;
  double value = 0;
  const auto [at, error] = std::from_chars(begin, end, value);
  if (error == std::errc::invalid_argument) return 0;
  if (error == std::errc::result_out_of_range) {
    if (IsTiny({begin, static_cast<std::size_t>(at - begin)})) return 0;
    return *begin == '-' ? std::numeric_limits<double>::lowest()
                         : std::numeric_limits<double>::max();
  }
  return value == 0 ? 0 : value;
}

double ValOfNormalised(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c != '.') plain += c == ',' ? '.' : c;
  }
  return Val(plain);
}

double ToDouble(Currency value) {
  return static_cast<double>(static_cast<long double>(value.TenThousandths()) / Currency::kScale);
}

Currency ToCurrency(double value) {
  // Up to here 15 digits reach the fourth decimal, and a tie is one that a reader would see;
  // beyond, the double itself tells more than they do.
  constexpr double kLastOf15Digits = 1e11;
  if (std::fabs(value) < kLastOf15Digits) {
    constexpr int kDecimals = 4;
    return ToCurrency(
        Decimal::Of(value).Rounded(kDecimals, Decimal::Ties::kToEven).WithDecimals(1, kDecimals));
  }
  const long double scaled = std::nearbyint(static_cast<long double>(value) * Currency::kScale);
  constexpr double kLimit = 9223372036854775808.0;  // two to the power of 63
  if (!(scaled >= -kLimit && scaled < kLimit)) throw RuntimeError(Fault::kOverflow);
  return Currency::FromTenThousandths(static_cast<std::int64_t>(scaled));
}

Currency ToCurrency(std::int32_t value) {
  return Currency::FromTenThousandths(value * Currency::kScale);
}

std::int16_t ToInt16(double value) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(RoundedToWhole(value, Limits::min(), Limits::max()));
}

std::int32_t ToInt32(double value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(RoundedToWhole(value, Limits::min(), Limits::max()));
}

double Round(double value, int decimals) {
  return Decimal::Of(value).Rounded(decimals, Decimal::Ties::kToEven).ToDouble();
}

Currency Round(Currency value, int decimals) {
  return ToCurrency(
      Decimal::Of(value).Rounded(decimals, Decimal::Ties::kToEven).WithDecimals(0, decimals));
}

std::string ToText(double value) {
  return Decimal::Of(value).ToText();
}
std::string ToText(Currency value) {
  return Decimal::Of(value).ToText();
}
std::string ToText(bool value) {
  return value ? "True" : "False";
}

namespace {

struct Mask {
  int integers = 0;  ///< Integer digits always shown.
  int decimals = 0;
  bool thousands = false;
};

Mask ReadMask(std::string_view text) {
  Mask mask;
  const std::size_t point = std::min(text.find('.'), text.size());
  for (const char c : text.substr(0, point)) {
    mask.integers += c == '0' ? 1 : 0;
    mask.thousands = mask.thousands || c == ',';
  }
  mask.decimals = static_cast<int>(std::ranges::count(text.substr(point), '0'));
  return mask;
}

std::string Masked(const Decimal& value, std::string_view text) {
  const Mask mask = ReadMask(text);
  std::string plain = value.Rounded(mask.decimals, Decimal::Ties::kAwayFromZero)
                          .WithDecimals(mask.integers, mask.decimals);
  if (!mask.thousands) return plain;
  const std::size_t first = plain.starts_with('-') ? 1 : 0;
  const std::size_t comma = std::min(plain.find(','), plain.size());
  std::string grouped = plain.substr(0, first);
  for (std::size_t i = first; i < comma; ++i) {
    grouped += plain[i];
    if ((comma - i - 1) % 3 == 0 && i + 1 != comma) grouped += '.';
  }
  return grouped + plain.substr(comma);
}

}  // namespace

std::string Format(double value, std::string_view mask) {
  return Masked(Decimal::Of(value), mask);
}
std::string Format(Currency value, std::string_view mask) {
  return Masked(Decimal::Of(value), mask);
}

}  // namespace base
