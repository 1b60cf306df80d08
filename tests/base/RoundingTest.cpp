// Half to even against half away from zero: which rounding belongs to which conversion.

#include <gtest/gtest.h>

#include <limits>

#include "base/Numbers.h"
#include "support/Table.h"

namespace {

using base::Currency;
using support::FromExact;
using support::ResultOf;

TEST(Rounding, ToEvenInConversionsAndAwayFromZeroInMasks) {
  // value | to 16 bits | to 32 bits | Round(2) | "0" | "#,##0.00" | reason
  for (const auto& row : support::Table(R"(
    0.5       | 0       | 0        | 0.5      | 1       | 0,50       | tie above an even digit
    1.5       | 2       | 2        | 1.5      | 2       | 1,50       | tie above an odd digit
    2.5       | 2       | 2        | 2.5      | 3       | 2,50       | tie above an even digit
    -0.5      | 0       | 0        | -0.5     | -1      | -0,50      | ties below zero alike
    -2.5      | -2      | -2       | -2.5     | -3      | -2,50      | ties below zero alike
    0.4999999 | 0       | 0        | 0.5      | 0       | 0,50       | not a tie
    0.005     | 0       | 0        | 0        | 0       | 0,01       | tie at the second decimal
    0.025     | 0       | 0        | 0.02     | 0       | 0,03       | a tie; binary is above
    1.005     | 1       | 1        | 1        | 1       | 1,01       | a tie; binary is below
    0.285     | 0       | 0        | 0.28     | 0       | 0,29       | a tie; binary is below
    -0.285    | 0       | 0        | -0.28    | 0       | -0,29      | the same below zero
    9.995     | 10      | 10       | 10       | 10      | 10,00      | carried into a new digit
    999.995   | 1000    | 1000     | 1000     | 1000    | 1.000,00   | carried over a point
    32767.4   | 32767   | 32767    | 32767.4  | 32767   | 32.767,40  | the largest of 16 bits
    32767.5   | error 6 | 32768    | 32767.5  | 32768   | 32.767,50  | one more
    -32768.5  | -32768  | -32768   | -32768.5 | -32769  | -32.768,50 | the smallest of 16 bits
    -32768.6  | error 6 | -32769   | -32768.6 | -32769  | -32.768,60 | one less
    2147483647.4 | error 6 | 2147483647 | 2147483647.4 | 2147483647 | 2.147.483.647,40 | most
    2147483647.5 | error 6 | error 6 | 2147483647.5 | 2147483648 | 2.147.483.647,50 | above
    -2147483648.5 | error 6 | -2147483648 | -2147483648.5 | -2147483649 | -2.147.483.648,50 | least
  )")) {
    ASSERT_EQ(row.size(), 7U) << row.front();
    SCOPED_TRACE(row[0] + ": " + row[6]);
    const double value = FromExact(row[0]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToInt16(value)); }), row[1]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToInt32(value)); }), row[2]);
    EXPECT_EQ(support::Exact(base::Round(value, 2)), row[3]);
    EXPECT_EQ(base::Format(value, "0"), row[4]);
    EXPECT_EQ(base::FormatMoney(value), row[5]);
  }
}

TEST(Rounding, OfADoubleToMoney) {
  for (const auto& row : support::Table(R"(
    12.34             | 12,34                 | as it is
    0.03125           | 0,0312                | tie that binary holds exactly: to even
    0.09375           | 0,0938                | tie that binary holds exactly: to even
    -0.03125          | -0,0312               | the same below zero
    1000000.00007     | 1000000,0001          | above a tie
    0.1               | 0,1                   | binary holds it above
    0.30000000000000004 | 0,3                 | a sum of tenths
    1e-300            | 0                     | next to nothing
    1234567890123.25  | 1234567890123,25      | more than 53 bits of ten-thousandths
    922337203685477   | 922337203685477       | the largest whole amount
    -922337203685477.5 | -922337203685477,5   | next to the smallest
    -922337203685477.625 | error 6            | the double nearest to the smallest
    922337203685478   | error 6               | above the largest
    1e300             | error 6               | far above
  )")) {
    SCOPED_TRACE(row[0] + ": " + row[2]);
    const double value = FromExact(row[0]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToCurrency(value)); }), row[1]);
  }
}

TEST(Rounding, OfAnAmountToPlaces) {
  // value | 0 places | 1 | 2 | 3 | money mask
  for (const auto& row : support::Table(R"(
    1,5       | 2   | 1,5  | 1,5   | 1,5   | 1,50
    2,5       | 2   | 2,5  | 2,5   | 2,5   | 2,50
    -2,5      | -2  | -2,5 | -2,5  | -2,5  | -2,50
    0,0250    | 0   | 0    | 0,02  | 0,025 | 0,03
    -0,0250   | 0   | 0    | -0,02 | -0,025 | -0,03
    0,0251    | 0   | 0    | 0,03  | 0,025 | 0,03
    99,9950   | 100 | 100  | 100   | 99,995 | 100,00
    0,0005    | 0   | 0    | 0     | 0     | 0,00
    0,0015    | 0   | 0    | 0     | 0,002 | 0,00
  )")) {
    SCOPED_TRACE(row[0]);
    const Currency value = base::ToCurrency(row[0]);
    for (int places = 0; places <= 3; ++places) {
      EXPECT_EQ(base::ToText(base::Round(value, places)), row[1 + places]) << places << " places";
    }
    EXPECT_EQ(base::Round(value, 4), value);
    EXPECT_EQ(base::FormatMoney(value), row[5]);
  }
}

TEST(Rounding, AtTheLimitsFailsInsteadOfWrapping) {
  const Currency largest = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::max());
  const Currency smallest = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(ResultOf([&] { return base::ToText(base::Round(largest, 2)); }), "922337203685477,58");
  EXPECT_EQ(ResultOf([&] { return base::ToText(base::Round(largest, 0)); }), "error 6");
  EXPECT_EQ(ResultOf([&] { return base::ToText(base::Round(smallest, 0)); }), "error 6");

  constexpr double kLargest = std::numeric_limits<double>::max();
  EXPECT_EQ(ResultOf([&] { return base::ToText(base::Round(kLargest, 2)); }), "error 6")
      << "its 15 digits lie above it";
  EXPECT_EQ(ResultOf([&] { return base::ToText(base::Round(100, -1)); }), "error 5");
  for (const double none :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToCurrency(none)); }), "error 6");
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToInt16(none)); }), "error 6");
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::Round(none, 2)); }), "error 6");
    EXPECT_EQ(ResultOf([&] { return base::FormatMoney(none); }), "error 6");
    EXPECT_EQ(ResultOf([&] { return base::ToText(none); }), "error 6");
  }
}

}  // namespace
