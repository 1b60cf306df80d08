// The three readings of a text against each other, on the same inputs.

#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "support/Table.h"

namespace {

using support::ResultOf;

constexpr const char* kReadings = R"(
""               | error 13   | error 13   | 0      | nothing at all
"   "            | error 13   | error 13   | 0      | blanks alone
0                | 0          | 0          | 0      | zero
7                | 7          | 7          | 7      | a digit
"  12  "         | 12         | 12         | 12     | blanks around
1 2              | error 13   | error 13   | 12     | a blank inside
12,5             | 12.5       | 12,5       | 12     | comma: Val stops there
12.5             | 125        | 125        | 12.5   | point: thousands or decimals
1.234,56         | 1234.56    | 1234,56    | 1.234  | both
1.234.567        | 1234567    | 1234567    | 1.234  | points: Val stops at the second
1..2             | 12         | 12         | 1      | any points among the digits
.5               | error 13   | error 13   | 0.5    | no digit before the point
5.               | error 13   | error 13   | 5      | no digit after the point
1,2.3            | error 13   | error 13   | 1      | a point among the decimals
,5               | 0.5        | 0,5        | 0      | decimals alone
5,               | 5          | 5          | 5      | a comma and no decimals
,                | error 13   | error 13   | 0      | a comma alone
.                | error 13   | error 13   | 0      | a point alone
1,2,3            | error 13   | error 13   | 1      | two commas
-12,5            | -12.5      | -12,5      | -12    | a minus
+12,5            | 12.5       | 12,5       | 12     | a plus
-,5              | -0.5       | -0,5       | 0      | a sign before the comma
-0               | -0         | 0          | 0      | no negative zero in money
- 5              | error 13   | error 13   | -5     | a blank behind the sign
--5              | error 13   | error 13   | 0      | two signs
-                | error 13   | error 13   | 0      | a sign alone
5-               | error 13   | error 13   | 5      | a sign behind
R$ 5             | error 13   | error 13   | 0      | a currency sign
12a              | error 13   | error 13   | 12     | a letter behind
2 kg             | error 13   | error 13   | 2      | a unit
1e3              | error 13   | error 13   | 1000   | an exponent
1e999            | error 13   | error 13   | 1.7976931348623157e+308 | too large
1e-999           | error 13   | error 13   | 0      | too small
0x10             | error 13   | error 13   | 0      | no other base
inf              | error 13   | error 13   | 0      | no word is a number
0,00005          | 5e-05      | 0          | 0      | a tie: to even
0,00015          | 0.00015    | 0,0002     | 0      | a tie: to even
0,000050001      | 5.0001e-05 | 0,0001     | 0      | above a tie
-0,00015         | -0.00015   | -0,0002    | 0      | a tie below zero
0,12345          | 0.12345    | 0,1234     | 0      | a tie: to even
0,99995          | 0.99995    | 1          | 0      | carried through
)";

constexpr const char* kReadingsAtTheLimits = R"(
922.337.203.685.477,5807   | 922337203685477.6  | 922337203685477,5807  | 922.337  | the largest
922.337.203.685.477,58065  | 922337203685477.6  | 922337203685477,5806  | 922.337  | even, inside
922.337.203.685.477,58075  | 922337203685477.6  | error 6               | 922.337  | even, outside
922.337.203.685.477,5808   | 922337203685477.6  | error 6               | 922.337  | one above
-922.337.203.685.477,5808  | -922337203685477.6 | -922337203685477,5808 | -922.337 | the smallest
-922.337.203.685.477,58085 | -922337203685477.6 | -922337203685477,5808 | -922.337 | even, inside
-922.337.203.685.477,5809  | -922337203685477.6 | error 6               | -922.337 | one below
99999999999999999999999    | 1e+23              | error 6               | 1e+23    | beyond 64 bits
00000000000000000000000001 | 1                  | 1                     | 1        | leading zeros
)";

TEST(Readings, OfTheSameTextDiffer) {
  for (const auto& row : support::Table(std::string(kReadings) + kReadingsAtTheLimits)) {
    ASSERT_EQ(row.size(), 5U) << row.front();
    SCOPED_TRACE("\"" + row[0] + "\": " + row[4]);
    const std::string& text = row[0];
    const std::string asDouble = ResultOf([&] { return support::Exact(base::ToDouble(text)); });
    EXPECT_EQ(asDouble, row[1]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToCurrency(text)); }), row[2]);
    EXPECT_EQ(support::Exact(base::Val(text)), row[3]);
    EXPECT_EQ(base::IsNumeric(text), !row[1].starts_with("error"));
  }
}

TEST(Readings, TakeTabsForBlanks) {
  EXPECT_EQ(base::ToDouble("\t12\t"), 12);
  EXPECT_EQ(base::Val("1\t2\r\n3"), 123);
  EXPECT_FALSE(base::IsNumeric("1\n2"));
}

TEST(Readings, OfDigitsWithoutEndStayInsideTheLimits) {
  const std::string many(400, '9');
  EXPECT_EQ(ResultOf([&] { return support::Exact(base::ToDouble(many)); }), "error 6");
  EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToCurrency(many)); }), "error 6");
  EXPECT_FALSE(base::IsNumeric(many));
  EXPECT_EQ(support::Exact(base::Val(many)), "1.7976931348623157e+308");

  const std::string zeros(400, '0');
  EXPECT_EQ(base::ToDouble("0," + zeros + "1"), 0);
  EXPECT_TRUE(base::IsNumeric("-0," + zeros + "1"));
  EXPECT_EQ(base::ToCurrency("0," + zeros + "1"), base::Currency());
  EXPECT_EQ(base::Val("0." + zeros + "1"), 0) << "too small is zero, not the largest number";
  EXPECT_EQ(base::Val("-." + zeros + "1"), 0);
}

TEST(Readings, ValOfANormalisedTextReadsTheBrazilianForm) {
  for (const auto& row : support::Table(R"(
    1.234,56     | 1234.56 | points out, comma to point
    -1.234,5 kg  | -1234.5 | the prefix alone
    1,5,7        | 1.5     | stops at the second comma
    ,5           | 0.5     | decimals alone
    Nenhum valor | 0       | no number
  )")) {
    EXPECT_EQ(support::Exact(base::ValOfNormalised(row[0])), row[1]) << row[0] << ": " << row[2];
  }
}

}  // namespace
