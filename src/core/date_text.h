// Dates, their arithmetic and their texts. The calendar is the proleptic Gregorian one everywhere;
// years run from 100 to 9999.
#pragma once

#include <chrono>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvex::core {

// A calendar moment of some wall clock, to the second.
using DateTime = std::chrono::local_seconds;

// The mean lengths of the calendar year and of its month, in days. Ages and the balance of the
// first period are measured by them.
inline constexpr double kDaysOfYear = 365.25;
inline constexpr double kDaysOfMonth = 30.4375;
inline constexpr int kSecondsOfHour = 3600;

struct DateParts {
  int Year = 0;
  int Month = 0;
  int Day = 0;
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
};

// Thrown where date arithmetic leaves the years 100 to 9999.
class DateRangeError : public std::out_of_range {
 public:
  using std::out_of_range::out_of_range;
};

enum class DateInterval { Years, Months, Days, Hours, Minutes, Seconds };

// The moment of calendar parts; nothing where they name no moment of the years 100 to 9999.
std::optional<DateTime> MakeDateTime(const DateParts& parts);

// The calendar parts of a moment.
DateParts PartsOf(DateTime moment);

// The moment moved by `count` intervals. Years and months keep the day of the month, or take the
// month's last day where it is shorter. DateRangeError outside the years 100 to 9999.
DateTime DateAdd(DateInterval interval, std::int64_t count, DateTime moment);

// Midnight of the moment's day.
DateTime DateOnly(DateTime moment);

// Whole days from the first date to the second, by midnights crossed; negative backwards.
std::int64_t DaysBetween(DateTime from, DateTime to);

// 1 Sunday to 7 Saturday.
int WeekdayNumber(DateTime moment);

// "Sunday" to "Saturday".
std::string WeekdayName(DateTime moment);

// "5 November 2026", abbreviated "5 Nov 2026". No time of day.
std::string LongDateText(DateTime moment, bool abbreviate);

// The date of a text made by LongDateText, midnight; nothing for any other text.
std::optional<DateTime> ParseLongDateText(std::string_view text);

// "11/5/2026": month, day, four-digit year, no leading zeros.
std::string ShortDateText(DateTime moment);

// "02:30 PM" and "02:30:05 PM": 12-hour clock, two digits.
std::string TimeAmPm(DateTime moment);
std::string TimeSecondsAmPm(DateTime moment);

// "14:30": 24-hour clock.
std::string ShortTimeText(DateTime moment);

// "1990-07-05 14:30:00": the stored form.
std::string StoredDateTimeText(DateTime moment);

// The moment of "YYYY-MM-DD", "YYYY-MM-DD HH:MM" or "YYYY-MM-DD HH:MM:SS" (also with a T between);
// nothing for any other text, a day that is not in the calendar, or years outside 100 to 9999.
std::optional<DateTime> ParseDateTime(std::string_view text);

// A moment as a literal of a statement: #mm/dd/yyyy hh:mm:ss#.
std::string DateLiteral(DateTime moment);

// The moment of the inside of a date literal: month/day/year, optionally a time with a 24-hour or
// an AM/PM clock; nothing for any other text.
std::optional<DateTime> ParseDateLiteral(std::string_view text);

// "January" to "December" give 1 to 12, any other name 0.
int MonthNumber(std::string_view name);

// The month whose name begins with these three or more letters, in any case; 0 for any other text.
int MonthBeginningWith(std::string_view letters);

// The month number of a full or short English month name as "01" to "12"; std::invalid_argument
// for any other name.
std::string MonthNumberText(std::string_view name);

// "st", "nd", "rd" for 1 to 3, "th" for 4 to 12, "" for any other number. Meant for houses.
std::string OrdinalSuffix(int number);

// An age in words and the whole years it counts as.
struct Age {
  std::string Text;
  int Years = 0;
};

// The age at `to` of one born at `from`, as "Y Year(s), M Month(s), D Day(s)". Up to 30 days count
// as 0 years. The years, of kDaysOfYear, are held in single precision
// and split at the point of their text.
Age AgeText(DateTime from, DateTime to);

}  // namespace orvex::core
