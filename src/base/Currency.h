#pragma once

#include <compare>
#include <cstdint>

namespace base {

/// An amount of money: a 64-bit count of ten-thousandths, from -922.337.203.685.477,5808 to
/// 922.337.203.685.477,5807. Arithmetic is exact and checked: a result outside these limits is
/// run-time error 6. Conversions from and to text and double stand in Numbers.h.
class Currency {
 public:
  static constexpr std::int64_t kScale = 10'000;

  constexpr Currency() = default;
  static constexpr Currency FromTenThousandths(std::int64_t value) { return Currency(value); }
  constexpr std::int64_t TenThousandths() const { return value_; }

  // clang-tidy 14 takes a defaulted comparison for a null pointer.
  friend constexpr auto operator<=>(Currency, Currency) = default;  // NOLINT(modernize-use-nullptr)
  constexpr bool IsZero() const { return value_ == 0; }

  Currency operator-() const;
  friend Currency operator+(Currency a, Currency b);
  friend Currency operator-(Currency a, Currency b);
  /// The exact product, rounded half to even at the fourth decimal.
  friend Currency operator*(Currency a, Currency b);
  Currency& operator+=(Currency b) { return *this = *this + b; }
  Currency& operator-=(Currency b) { return *this = *this - b; }

 private:
  constexpr explicit Currency(std::int64_t value) : value_(value) {}

  std::int64_t value_ = 0;
};

/// The amount without its sign.
Currency Abs(Currency value);

}  // namespace base
