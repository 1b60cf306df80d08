#include <gtest/gtest.h>

#include "base/DateTime.h"
#include "support/Table.h"

namespace {

using base::DateTime;
using support::ResultOf;

TEST(Dates, ReadFromText) {
  for (const auto& row : support::Table(R"(
    22/12/2026          | 22/12/2026          | day and month in two digits
    01/02/2026          | 01/02/2026          | day first where both are possible
    1/2/2026            | 01/02/2026          | in one digit
    12/31/2026          | 31/12/2026          | impossible as day/month, possible as month/day
    "  22/12/2026 "     | 22/12/2026          | blanks around
    29/02/2028          | 29/02/2028          | a leap day
    29/02/1900          | error 13            | a century without one
    29/02/2027          | error 13            | no leap year
    31/04/2026          | error 13            | a month of thirty days
    00/12/2026          | error 13            | no day 0
    12/00/2026          | error 13            | no month 0
    01/01/0001          | 01/01/0001          | the first day
    31/12/9999          | 31/12/9999          | the last day
    01/01/0000          | error 13            | no year 0
    22/12/26            | error 13            | a year of two digits
    22-12-2026          | error 13            | other separators
    2026/12/22          | error 13            | year first
    22/12               | error 13            | no year
    __/__/____          | error 13            | an empty date box
    2_/12/2026          | error 13            | a half-filled one
    ""                  | error 13            | nothing
    22/12/2026 8:05     | 22/12/2026 08:05:00 | a time, hour in one digit
    22/12/2026 23:59:59 | 22/12/2026 23:59:59 | a time with seconds
    22/12/2026 00:00:00 | 22/12/2026          | midnight has no time
    12/31/2026 10:00    | 31/12/2026 10:00:00 | month first, with a time
    22/12/2026 24:00    | error 13            | no hour 24
    22/12/2026 10       | error 13            | an hour alone
    22/12/2026 10:      | error 13            | no minutes
    22/12/2026x         | error 13            | more behind
  )")) {
    SCOPED_TRACE("\"" + row[0] + "\": " + row[2]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToDate(row[0])); }), row[1]);
    EXPECT_EQ(base::IsDate(row[0]), !row[1].starts_with("error"));
  }
}

TEST(Dates, ThroughTheirMasks) {
  const DateTime date(2026, 3, 7, 14, 30, 5);
  EXPECT_EQ(base::Format(date, base::DateMask::kDayMonthYear), "07/03/2026");
  EXPECT_EQ(base::Format(date, base::DateMask::kMonthDayYear), "03/07/2026");
  EXPECT_EQ(base::Format(date, base::DateMask::kYearMonthDay), "2026/03/07");
  EXPECT_EQ(base::Format(DateTime(33, 1, 2), base::DateMask::kDayMonthYear), "02/01/0033");
  EXPECT_EQ(base::ToText(date), "07/03/2026 14:30:05");
  EXPECT_EQ(base::ToText(date.Date()), "07/03/2026");
}

TEST(Dates, OfEightDigitsGetTheirSlashes) {
  for (const auto& row : support::Table(R"(
    22122026   | 22/12/2026
    2212-026   | 2212-026
    22/12/2026 | 22/12/2026
    ""         | ""
  )")) {
    EXPECT_EQ(base::FormatDateDigits(row[0]), row[1]);
  }
}

TEST(Dates, MoveByMonths) {
  for (const auto& row : support::Table(R"(
    31/01/2026          | 1      | 28/02/2026          | the last day of a shorter month
    31/01/2028          | 1      | 29/02/2028          | in a leap year
    29/02/2028          | 12     | 28/02/2029          | a leap day a year on
    31/03/2026          | -1     | 28/02/2026          | backwards
    15/01/2026          | -13    | 15/12/2024          | backwards over the year
    30/06/2026 08:00:01 | 0      | 30/06/2026 08:00:01 | nowhere, the time kept
    31/08/2026 23:59:59 | 1      | 30/09/2026 23:59:59 | the time kept
    31/12/1969          | 2      | 28/02/1970          | into 1970
    31/12/9999          | 1      | error 6             | past the last year
    01/01/0001          | -1     | error 6             | before the first
    22/12/2026          | 2147483647  | error 6        | far past
    22/12/2026          | -2147483648 | error 6        | far before
  )")) {
    SCOPED_TRACE(row[0] + " + " + row[1] + ": " + row[3]);
    const int months = static_cast<int>(support::FromDigits(row[1]));
    const DateTime from = base::ToDate(row[0]);
    EXPECT_EQ(ResultOf([&] { return base::ToText(from.PlusMonths(months)); }), row[2]);
  }
}

TEST(Dates, MoveByDaysAndSeconds) {
  const DateTime newYear(2027, 1, 1);
  EXPECT_EQ(base::ToText(newYear.PlusDays(-1)), "31/12/2026");
  EXPECT_EQ(base::ToText(newYear.PlusDays(365)), "01/01/2028");
  EXPECT_EQ(base::ToText(newYear.PlusSeconds(-1)), "31/12/2026 23:59:59");
  EXPECT_EQ(ResultOf([&] { return base::ToText(newYear.PlusDays(9'999'999)); }), "error 6");
  EXPECT_EQ(ResultOf([&] { return base::ToText(newYear.PlusDays(-9'999'999)); }), "error 6");
  EXPECT_EQ(base::ToText(DateTime(9999, 12, 31).PlusSeconds(86'399)), "31/12/9999 23:59:59");
  EXPECT_THROW(DateTime(9999, 12, 31).PlusSeconds(86'400), base::RuntimeError);
}

TEST(Dates, ThatDoNotExistCannotBeMade) {
  EXPECT_THROW(DateTime(2026, 2, 29), base::RuntimeError);
  EXPECT_THROW(DateTime(10000, 1, 1), base::RuntimeError);
  EXPECT_THROW(DateTime(2026, 1, 1, 24), base::RuntimeError);
}

TEST(Dates, CountWholeDaysBetween) {
  EXPECT_EQ(base::DaysBetween(DateTime(2026, 12, 22, 23, 59), DateTime(2026, 12, 23)), 1)
      << "calendar days, not spans of 24 hours";
  EXPECT_EQ(base::DaysBetween(DateTime(2026, 12, 22), DateTime(2026, 12, 22, 23, 59, 59)), 0);
  EXPECT_EQ(base::DaysBetween(DateTime(2027, 1, 1), DateTime(2026, 12, 22)), -10);
  EXPECT_EQ(base::DaysBetween(DateTime(1969, 12, 31, 12), DateTime(1970, 1, 1)), 1);
  EXPECT_EQ(base::DaysBetween(DateTime(1900, 1, 1), DateTime(2000, 1, 1)), 36'524);
  EXPECT_EQ(base::ToText(DateTime(1969, 12, 31, 23, 59, 58)), "31/12/1969 23:59:58");
}

}  // namespace
