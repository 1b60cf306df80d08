#include "base/Currency.h"

#include <limits>

#include "base/RuntimeError.h"

namespace base {
namespace {

__extension__ using Wide = __int128;

Currency Checked(Wide value) {
  if (value > std::numeric_limits<std::int64_t>::max() ||
      value < std::numeric_limits<std::int64_t>::min()) {
    throw RuntimeError(Fault::kOverflow);
  }
  return Currency::FromTenThousandths(static_cast<std::int64_t>(value));
}

}  // namespace

Currency Currency::operator-() const {
  return Checked(-static_cast<Wide>(value_));
}

Currency operator+(Currency a, Currency b) {
  return Checked(static_cast<Wide>(a.value_) + b.value_);
}

Currency operator-(Currency a, Currency b) {
  return Checked(static_cast<Wide>(a.value_) - b.value_);
}

Currency operator*(Currency a, Currency b) {
  const Wide product = static_cast<Wide>(a.value_) * b.value_;
  const Wide magnitude = product < 0 ? -product : product;
  Wide quotient = magnitude / Currency::kScale;
  const Wide twice = 2 * (magnitude % Currency::kScale);
  if (twice > Currency::kScale || (twice == Currency::kScale && quotient % 2 != 0)) ++quotient;
  return Checked(product < 0 ? -quotient : quotient);
}

Currency Abs(Currency value) {
  return value < Currency() ? -value : value;
}

}  // namespace base
