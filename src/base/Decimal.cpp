#include "base/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/RuntimeError.h"

namespace base {

Decimal Decimal::Of(double value) {
  if (!std::isfinite(value)) throw RuntimeError(Fault::kOverflow);
  Decimal decimal;
  char text[40];
  const auto end =
      std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific, 14);
  const std::string_view written(text, static_cast<std::size_t>(end.ptr - text));
  const std::size_t exponent = written.find('e');
  for (const char c : written.substr(0, exponent)) {
    if (c != '.') decimal.digits_ += c;
  }
  std::string_view power = written.substr(exponent + 1);
  if (power.starts_with('+')) power.remove_prefix(1);
  std::from_chars(power.data(), power.data() + power.size(), decimal.point_);
  ++decimal.point_;
  decimal.negative_ = value < 0;
  decimal.Normalise();
  return decimal;
}

Decimal Decimal::Of(Currency value) {
  Decimal decimal;
  const std::int64_t count = value.TenThousandths();
  decimal.negative_ = count < 0;
  const std::uint64_t magnitude =
      count < 0 ? ~static_cast<std::uint64_t>(count) + 1 : static_cast<std::uint64_t>(count);
  char text[24];
  const auto end = std::to_chars(text, text + sizeof text, magnitude);
  decimal.digits_.assign(text, end.ptr);
  decimal.point_ = static_cast<int>(decimal.digits_.size()) - 4;
  decimal.Normalise();
  return decimal;
}

void Decimal::Normalise() {
  const std::size_t first = std::min(digits_.find_first_not_of('0'), digits_.size());
  digits_.erase(0, first);
  point_ -= static_cast<int>(first);
  digits_.erase(digits_.find_last_not_of('0') + 1);
  if (digits_.empty()) {
    negative_ = false;
    point_ = 0;
  }
}

int Decimal::Decimals() const {
  return std::max(0, static_cast<int>(digits_.size()) - point_);
}

Decimal Decimal::Rounded(int decimals, Ties ties) const {
  if (decimals < 0) throw RuntimeError(Fault::kInvalidArgument);
  if (Decimals() <= decimals) return *this;
  Decimal rounded = *this;
  const int kept = point_ + decimals;
  if (kept < 0) {
    rounded.digits_.clear();
    rounded.Normalise();
    return rounded;
  }
  const std::size_t length = static_cast<std::size_t>(kept);
  const char next = digits_[length];
  const bool tie = next == '5' && length + 1 == digits_.size();
  const bool odd = length > 0 && (digits_[length - 1] - '0') % 2 != 0;
  const bool up = tie ? ties == Ties::kAwayFromZero || odd : next >= '5';
  rounded.digits_.resize(length);
  if (up) {
    std::size_t at = length;
    while (at > 0 && rounded.digits_[at - 1] == '9') rounded.digits_[--at] = '0';
    if (at > 0) {
      ++rounded.digits_[at - 1];
    } else {
      rounded.digits_.insert(0, 1, '1');
      ++rounded.point_;
    }
  }
  rounded.Normalise();
  return rounded;
}

std::string Decimal::WithDecimals(int integers, int decimals) const {
  std::string text;
  if (negative_) text += '-';
  const int before = std::max(point_, 0);
  text.append(static_cast<std::size_t>(std::max(integers - before, 0)), '0');
  const auto digit = [this](int at) {
    return at >= 0 && at < static_cast<int>(digits_.size()) ? digits_[static_cast<std::size_t>(at)]
                                                            : '0';
  };
  for (int at = 0; at < before; ++at) text += digit(at);
  if (decimals > 0) {
    text += ',';
    for (int at = point_; at < point_ + decimals; ++at) text += digit(at);
  }
  return text.empty() || text == "-" ? "0" : text;
}

std::string Decimal::ToText() const {
  return WithDecimals(1, Decimals());
}

double Decimal::ToDouble() const {
  std::string plain = ToText();
  std::ranges::replace(plain, ',', '.');
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error == std::errc::result_out_of_range && point_ > 0) throw RuntimeError(Fault::kOverflow);
  return value;
}

}  // namespace base
