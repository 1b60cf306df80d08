#include <gtest/gtest.h>

#include <limits>

#include "base/Currency.h"
#include "base/Numbers.h"
#include "support/Table.h"

namespace {

using base::Currency;
using support::ResultOf;

Currency operator""_brl(const char* text) {
  return base::ToCurrency(base::Replace(text, ".", ","));
}
constexpr Currency kLargest =
    Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::max());
constexpr Currency kSmallest =
    Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
constexpr Currency kTiny = Currency::FromTenThousandths(1);

TEST(Currency, ProductsAreExactThenRoundHalfToEven) {
  for (const auto& row : support::Table(R"(
    2              | 3          | 6                    | whole
    0,01           | 0,01       | 0,0001               | the last decimal
    0,01           | 0,005      | 0                    | tie: to even
    0,03           | 0,005      | 0,0002               | tie: to even
    0,05           | 0,005      | 0,0002               | tie: to even
    -0,03          | 0,005      | -0,0002              | tie below zero
    -0,01          | -0,005     | 0                    | two minus signs
    0,0001         | 0,5001     | 0,0001               | above a tie
    0,335          | 12,99      | 4,3516               | a price by weight: 4,35165
    1,005          | 0,1        | 0,1005               | nothing to round
    922337203685477,5807 | 1    | 922337203685477,5807 | the largest
    -922337203685477,5808 | 1   | -922337203685477,5808 | the smallest
    -922337203685477,5808 | -1  | error 6              | its opposite
    922337203685477,5807 | 1,0001 | error 6            | just above
    30370004,9998  | 30370004,9998 | error 6           | the first square outside
    30370004,9997  | 30370004,9997 | 922337203681802,997 | the last square inside
  )")) {
    const Currency a = base::ToCurrency(row[0]), b = base::ToCurrency(row[1]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(a * b); }), row[2]) << row[3];
    EXPECT_EQ(ResultOf([&] { return base::ToText(b * a); }), row[2]) << row[3];
  }
}

TEST(Currency, SumsAreExactAndChecked) {
  Currency sum;
  for (int i = 0; i < 10; ++i) sum += 0.1_brl;
  EXPECT_EQ(sum, 1.00_brl);
  sum -= 1.0001_brl;
  EXPECT_EQ(base::ToText(sum), "-0,0001");
  EXPECT_TRUE((sum + 0.0001_brl).IsZero());

  EXPECT_EQ(kLargest - kTiny + kTiny, kLargest);
  EXPECT_EQ(kLargest + kSmallest, -kTiny);
  const auto text = [](auto compute) { return ResultOf([&] { return base::ToText(compute()); }); };
  EXPECT_EQ(text([] { return kLargest + kTiny; }), "error 6");
  EXPECT_EQ(text([] { return kSmallest - kTiny; }), "error 6");
  EXPECT_EQ(text([] { return -kSmallest; }), "error 6");
  EXPECT_EQ(text([] { return base::Abs(kSmallest); }), "error 6");
  EXPECT_EQ(text([] { return base::Abs(-kLargest); }), base::ToText(kLargest));
  EXPECT_EQ(text([] { return base::Abs(kLargest); }), base::ToText(kLargest));
}

TEST(Currency, ASumThatFailsLeavesTheAmountAsItWas) {
  Currency amount = kLargest;
  EXPECT_THROW(amount += 0.01_brl, base::RuntimeError);
  EXPECT_EQ(amount, kLargest);
}

}  // namespace
