#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// A calendar date with a time of day, in the clinic's own time, from year 1 to 9999; no time zone.
class DateTime {
 public:
  /// 1 January 1970, 00:00:00.
  constexpr DateTime() = default;
  /// Error 13 when there is no such day or time.
  DateTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

  static bool Exists(int year, int month, int day);
  static constexpr DateTime FromSeconds(std::int64_t since1970) { return DateTime(since1970); }
  constexpr std::int64_t Seconds() const { return seconds_; }

  int Year() const;
  int Month() const;
  int Day() const;
  int Hour() const;
  int Minute() const;
  int Second() const;

  /// The same day at 00:00:00.
  DateTime Date() const;
  // Sums; error 6 when the result lies outside the years 1 to 9999.

  DateTime PlusSeconds(std::int64_t count) const;
  DateTime PlusDays(int count) const;
  /// The same day of another month; a day that month lacks becomes its last day.
  DateTime PlusMonths(int count) const;

  // clang-tidy 14 takes a defaulted comparison for a null pointer.
  friend constexpr auto operator<=>(DateTime, DateTime) = default;  // NOLINT(modernize-use-nullptr)

 private:
  constexpr explicit DateTime(std::int64_t seconds) : seconds_(seconds) {}

  std::int64_t seconds_ = 0;
};

/// Whole calendar days from the date of `from` to the date of `to`; negative when `to` is earlier.
int DaysBetween(DateTime from, DateTime to);

/// The forms a date is written in.
enum class DateMask {
  kDayMonthYear,  ///< dd/mm/yyyy
  kMonthDayYear,  ///< mm/dd/yyyy
  kYearMonthDay,  ///< yyyy/mm/dd
};
std::string Format(DateTime value, DateMask mask);

/// dd/mm/yyyy, followed by hh:mm:ss when the time is not midnight.
std::string ToText(DateTime value);

/// A date from day/month/year, or, when that is impossible, from month/day/year; day and month may
/// have one digit, the year has four; hh:mm or hh:mm:ss may follow. Anything else is error 13.
DateTime ToDate(std::string_view text);
bool IsDate(std::string_view text);

/// Eight digits through the mask "00/00/0000": they get their slashes; other text stays as it is.
std::string FormatDateDigits(std::string_view text);

}  // namespace base
