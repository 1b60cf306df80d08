#include "base/DateTime.h"

#include <chrono>
#include <cstdio>
#include <optional>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace base {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr std::int64_t kSecondsOfDay = 86'400;

std::int64_t DayNumber(std::int64_t seconds) {
  return seconds >= 0 ? seconds / kSecondsOfDay : -((kSecondsOfDay - 1 - seconds) / kSecondsOfDay);
}

std::int64_t TimeOfDay(std::int64_t seconds) {
  return seconds - DayNumber(seconds) * kSecondsOfDay;
}

year_month_day Calendar(std::int64_t seconds) {
  return year_month_day(sys_days(days(DayNumber(seconds))));
}

/// Reads up to `most` digits from the front of `text`; nothing when there is none.
std::optional<int> TakeNumber(std::string_view& text, std::size_t most) {
  std::size_t length = 0;
  int value = 0;
  while (length < text.size() && length < most && text[length] >= '0' && text[length] <= '9') {
    value = value * 10 + (text[length] - '0');
    ++length;
  }
  if (length == 0) return std::nullopt;
  text.remove_prefix(length);
  return value;
}

bool Take(std::string_view& text, char wanted) {
  if (text.empty() || text.front() != wanted) return false;
  text.remove_prefix(1);
  return true;
}

/// Reads " hh:mm" or " hh:mm:ss" to the end of the text, as seconds since midnight.
std::optional<int> TakeTime(std::string_view text) {
  if (text.empty()) return 0;
  if (!Take(text, ' ')) return std::nullopt;
  const auto hour = TakeNumber(text, 2);
  if (!hour || !Take(text, ':')) return std::nullopt;
  const auto minute = TakeNumber(text, 2);
  std::optional<int> second = 0;
  if (Take(text, ':')) second = TakeNumber(text, 2);
  if (!minute || !second || !text.empty()) return std::nullopt;
  if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
  return *hour * 3600 + *minute * 60 + *second;
}

std::optional<DateTime> Parse(std::string_view whole) {
  const std::string trimmed = Trim(whole);
  std::string_view text = trimmed;
  const auto first = TakeNumber(text, 2);
  if (!first || !Take(text, '/')) return std::nullopt;
  const auto second = TakeNumber(text, 2);
  if (!second || !Take(text, '/')) return std::nullopt;
  const std::size_t before = text.size();
  const auto inYear = TakeNumber(text, 4);
  if (!inYear || before - text.size() != 4) return std::nullopt;
  const auto time = TakeTime(text);
  if (!time) return std::nullopt;
  if (DateTime::Exists(*inYear, *second, *first)) {
    return DateTime(*inYear, *second, *first).PlusSeconds(*time);
  }
  if (DateTime::Exists(*inYear, *first, *second)) {
    return DateTime(*inYear, *first, *second).PlusSeconds(*time);
  }
  return std::nullopt;
}

}  // namespace

DateTime::DateTime(int inYear, int inMonth, int inDay, int hour, int minute, int second) {
  if (!Exists(inYear, inMonth, inDay) || hour < 0 || hour > 23 || minute < 0 || minute > 59 ||
      second < 0 || second > 59) {
    throw RuntimeError(Fault::kTypeMismatch);
  }
  const sys_days date =
      year(inYear) / month(static_cast<unsigned>(inMonth)) / day(static_cast<unsigned>(inDay));
  seconds_ = date.time_since_epoch().count() * kSecondsOfDay + hour * std::int64_t{3600} +
             minute * std::int64_t{60} + second;
}

bool DateTime::Exists(int inYear, int inMonth, int inDay) {
  if (inYear < 1 || inYear > 9999 || inMonth < 1 || inMonth > 12 || inDay < 1) return false;
  return (year(inYear) / month(static_cast<unsigned>(inMonth)) / day(static_cast<unsigned>(inDay)))
      .ok();
}

int DateTime::Year() const {
  return static_cast<int>(Calendar(seconds_).year());
}
int DateTime::Month() const {
  return static_cast<int>(static_cast<unsigned>(Calendar(seconds_).month()));
}
int DateTime::Day() const {
  return static_cast<int>(static_cast<unsigned>(Calendar(seconds_).day()));
}
int DateTime::Hour() const {
  return static_cast<int>(TimeOfDay(seconds_) / 3600);
}
int DateTime::Minute() const {
  return static_cast<int>(TimeOfDay(seconds_) / 60 % 60);
}
int DateTime::Second() const {
  return static_cast<int>(TimeOfDay(seconds_) % 60);
}

DateTime DateTime::Date() const {
  return DateTime(DayNumber(seconds_) * kSecondsOfDay);
}

DateTime DateTime::PlusSeconds(std::int64_t count) const {
  static const std::int64_t kFirst = DateTime(1, 1, 1).seconds_;
  static const std::int64_t kLast = DateTime(9999, 12, 31, 23, 59, 59).seconds_;
  if (count < kFirst - seconds_ || count > kLast - seconds_) {
    throw RuntimeError(Fault::kOverflow);
  }
  return DateTime(seconds_ + count);
}

DateTime DateTime::PlusDays(int count) const {
  return PlusSeconds(count * kSecondsOfDay);
}

DateTime DateTime::PlusMonths(int count) const {
  constexpr std::int64_t kMonths = 12;
  const std::int64_t wanted = Year() * kMonths + Month() - 1 + count;
  const auto inYear = wanted / kMonths;
  if (wanted < kMonths || inYear > 9999) throw RuntimeError(Fault::kOverflow);
  const int inMonth = static_cast<int>(wanted % kMonths) + 1;
  int inDay = Day();
  while (!Exists(static_cast<int>(inYear), inMonth, inDay)) --inDay;
  return DateTime(static_cast<int>(inYear), inMonth, inDay).PlusSeconds(TimeOfDay(seconds_));
}

int DaysBetween(DateTime from, DateTime to) {
  return static_cast<int>(DayNumber(to.Seconds()) - DayNumber(from.Seconds()));
}

std::string Format(DateTime value, DateMask mask) {
  char text[32];
  const int inYear = value.Year(), inMonth = value.Month(), inDay = value.Day();
  switch (mask) {
    case DateMask::kDayMonthYear:
      std::snprintf(text, sizeof text, "%02d/%02d/%04d", inDay, inMonth, inYear);
      break;
    case DateMask::kMonthDayYear:
      std::snprintf(text, sizeof text, "%02d/%02d/%04d", inMonth, inDay, inYear);
      break;
    case DateMask::kYearMonthDay:
      std::snprintf(text, sizeof text, "%04d/%02d/%02d", inYear, inMonth, inDay);
      break;
  }
  return text;
}

std::string ToText(DateTime value) {
  std::string text = Format(value, DateMask::kDayMonthYear);
  if (TimeOfDay(value.Seconds()) != 0) {
    char time[16];
    std::snprintf(time, sizeof time, " %02d:%02d:%02d", value.Hour(), value.Minute(),
                  value.Second());
    text += time;
  }
  return text;
}

DateTime ToDate(std::string_view text) {
  const auto date = Parse(text);
  if (!date) throw RuntimeError(Fault::kTypeMismatch);
  return *date;
}

bool IsDate(std::string_view text) {
  return Parse(text).has_value();
}

std::string FormatDateDigits(std::string_view text) {
  if (text.size() != 8 || text.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::string(text);
  }
  return std::string(text.substr(0, 2)) + '/' + std::string(text.substr(2, 2)) + '/' +
         std::string(text.substr(4));
}

}  // namespace base
