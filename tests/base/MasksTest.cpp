// Numbers through the masks of the screens, the reports and the fiscal records.

#include <gtest/gtest.h>

#include <limits>

#include "base/Numbers.h"
#include "support/Table.h"

namespace {

using base::Currency;
using support::FromExact;

TEST(Masks, OfTheScreensAndTheRecords) {
  for (const auto& row : support::Table(R"(
    #,##0.00     | 0                | 0,00                | zero
    #,##0.00     | 1000             | 1.000,00            | the first point
    #,##0.00     | 1234567.891      | 1.234.567,89        | two points
    #,##0.00     | -1234.5          | -1.234,50           | a minus before the digits
    #,##0.00     | -999999.995      | -1.000.000,00       | carried, with a new point
    #,##0.00     | -0.004           | 0,00                | rounds to zero: no minus
    #,##0.00     | -0.005           | -0,01               | does not round to zero
    #,##0.00     | 1e-300           | 0,00                | next to nothing
    #,##0.00     | 123456789012345678 | 123.456.789.012.346.000,00 | 15 digits, then zeros
    #,##0.00     | 1e20             | 100.000.000.000.000.000.000,00 | above 64 bits
    #,##0.00     | 0.30000000000000004 | 0,30             | the 17th digit is not seen
    #,##0.00     | 4.35499999999999998 | 4,36             | a tie at 15 digits
    #,##0.000    | 0.0005           | 0,001               | a weight, away from zero
    #,##0.000    | 1234.5           | 1.234,500           | a weight
    #,##0.000    | -0.0004          | 0,000               | rounds to zero: no minus
    0            | 0.5              | 1                   | a half
    0            | -0.4             | 0                   | rounds to zero: no minus
    #0.00        | 1234.565         | 1234,57             | no points
    #0.00        | -0.5             | -0,50               | minus
    #,##.00      | 0                | ,00                 | no integer digit is forced
    #,##.00      | 0.5              | ,50                 | no integer digit is forced
    #,##.00      | -0.5             | -,50                | minus, no integer digit
    #,##.00      | -0.004           | ,00                 | rounds to zero: no minus
    #,##.00      | 1234.5           | 1.234,50            | points
    00           | 0                | 00                  | zero
    00           | 123              | 123                 | more digits than places
    00           | -7               | -07                 | minus before the fill
    00           | -0.5             | -01                 | away from zero
    00000000.000 | 1.5              | 00000001,500        | filled
    00000000.000 | 123456789.0005   | 123456789,001       | more digits than places
    000000000.00 | 12.345           | 000000012,35        | filled
    #            | 0                | 0                   | never an empty text
  )")) {
    ASSERT_EQ(row.size(), 4U) << row.front();
    EXPECT_EQ(base::Format(FromExact(row[1]), row[0]), row[2])
        << row[1] << " through " << row[0] << ": " << row[3];
  }
}

TEST(Masks, TakeAmountsWithAllTheirDigits) {
  const Currency smallest = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(base::FormatMoney(smallest), "-922.337.203.685.477,58");
  EXPECT_EQ(base::Format(smallest, base::kWeightMask), "-922.337.203.685.477,581");
  const Currency amount = base::ToCurrency("123456789012345,0050");
  EXPECT_EQ(base::FormatMoney(amount), "123.456.789.012.345,01");
  EXPECT_EQ(base::FormatMoney(base::ToDouble(amount)), "123.456.789.012.345,00")
      << "the double at its 15 digits has lost the decimals";
  EXPECT_EQ(base::FormatMoney(base::ToCurrency("-0,0049")), "0,00");
}

TEST(Masks, WriteWhatReadsBackTheSame) {
  for (std::int64_t cents = -250'000; cents <= 250'000; cents += 37) {
    const Currency amount = Currency::FromTenThousandths(cents * 100);
    const std::string text = base::FormatMoney(amount);
    ASSERT_EQ(base::ToCurrency(text), amount) << text;
    ASSERT_EQ(base::FormatMoney(base::ToDouble(text)), text);
    ASSERT_EQ(base::ToCurrency(base::ToDouble(amount)), amount) << text;
  }
}

TEST(NumbersAsText, CarryNoThousandsAndNoUselessDigits) {
  for (const auto& row : support::Table(R"(
    0                   | 0                     | zero
    -0                  | 0                     | no minus before zero
    0.5                 | 0,5                   | comma
    -1234.5             | -1234,5               | no thousands
    100                 | 100                   | zeros that count
    0.1                 | 0,1                   | no binary tail
    0.30000000000000004 | 0,3                   | 15 digits
    0.333333333333333333 | 0,333333333333333    | 15 digits
    1234567890.12345678 | 1234567890,12346      | 15 digits, rounded
    123456789012345678  | 123456789012346000    | 15 digits, then zeros
    0.000001            | 0,000001              | no exponent
  )")) {
    EXPECT_EQ(base::ToText(FromExact(row[0])), row[1]) << row[0] << ": " << row[2];
  }
  EXPECT_EQ(base::ToText(base::ToCurrency("12,3400")), "12,34");
  EXPECT_EQ(base::ToText(base::ToCurrency("-0,0001")), "-0,0001");
  EXPECT_EQ(base::ToText(base::ToCurrency("1.200")), "1200");
  EXPECT_EQ(base::ToText(std::int32_t{-7}), "-7");
  EXPECT_EQ(base::ToText(true) + base::ToText(false), "TrueFalse");
}

}  // namespace
