#include "core/date_text.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::core {

namespace {

using std::chrono::local_days;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

constexpr std::array<std::string_view, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};

bool InRange(int year) { return year >= kFirstYear && year <= kLastYear; }

local_days DayOf(DateTime moment) { return std::chrono::floor<std::chrono::days>(moment); }

std::chrono::year_month_day CalendarOf(DateTime moment) {
  return std::chrono::year_month_day(DayOf(moment));
}

DateTime Checked(DateTime moment) {
  if (!InRange(static_cast<int>(CalendarOf(moment).year()))) {
    throw DateRangeError("a date outside the years 100 to 9999");
  }
  return moment;
}

DateTime AddMonths(std::int64_t count, DateTime moment) {
  constexpr std::int64_t kMostMonths = 12L * kLastYear;
  if (count < -kMostMonths || count > kMostMonths) {
    throw DateRangeError("a date outside the years 100 to 9999");
  }
  std::chrono::year_month_day date = CalendarOf(moment);
  date += std::chrono::months(count);
  if (!date.ok()) {
    date = date.year() / date.month() / std::chrono::last;
  }
  return Checked(local_days(date) + (moment - DayOf(moment)));
}

// Digits only, at most four of them.
std::optional<int> ReadDigits(std::string_view text) {
  const bool digits = !text.empty() && text.size() <= 4 &&
                      text.find_first_not_of("0123456789") == std::string_view::npos;
  if (!digits) {
    return std::nullopt;
  }
  int value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

struct Numbers {
  std::array<int, 3> Values{};
  std::size_t Count = 0;
};

// Two or three numbers with a separator between them; the third is 0 where it is missing.
std::optional<Numbers> ReadNumbers(std::string_view text, char separator) {
  Numbers numbers;
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t end = std::min(text.find(separator, start), text.size());
    const std::optional<int> number = ReadDigits(text.substr(start, end - start));
    if (!number || numbers.Count == numbers.Values.size()) {
      return std::nullopt;
    }
    numbers.Values.at(numbers.Count++) = *number;
    start = end + 1;
  }
  return numbers.Count < 2 ? std::nullopt : std::optional(numbers);
}

// "HH:MM" or "HH:MM:SS" into the parts.
bool ReadTime(std::string_view text, DateParts& parts) {
  const std::optional<Numbers> time = ReadNumbers(text, ':');
  if (time) {
    const auto [hour, minute, second] = time->Values;
    parts.Hour = hour;
    parts.Minute = minute;
    parts.Second = second;
  }
  return time.has_value();
}

// The hour of a 24-hour clock from that of an AM/PM clock.
bool TakeHalf(std::string_view half, DateParts& parts) {
  if (parts.Hour < 1 || parts.Hour > 12 || (half != "AM" && half != "PM")) {
    return false;
  }
  parts.Hour = parts.Hour % 12 + (half == "PM" ? 12 : 0);
  return true;
}

int HourOfTwelve(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

std::string HalfOfDay(int hour) { return hour < 12 ? " AM" : " PM"; }

int MonthOfName(std::string_view name, bool abbreviated) {
  const auto matches = [&](std::string_view month) {
    return name == (abbreviated ? month.substr(0, 3) : month);
  };
  const auto* found = std::find_if(kMonths.begin(), kMonths.end(), matches);
  return found == kMonths.end() ? 0 : static_cast<int>(found - kMonths.begin()) + 1;
}

std::string AgeWords(std::int64_t years, std::int64_t months, std::int64_t days) {
  return WholeText(years) + " Year(s), " + WholeText(months) + " Month(s), " + WholeText(days) +
         " Day(s)";
}

}  // namespace

std::optional<DateTime> MakeDateTime(const DateParts& parts) {
  const std::chrono::year_month_day date{std::chrono::year(parts.Year),
                                         std::chrono::month(static_cast<unsigned>(parts.Month)),
                                         std::chrono::day(static_cast<unsigned>(parts.Day))};
  const bool clock = parts.Hour >= 0 && parts.Hour < 24 && parts.Minute >= 0 && parts.Minute < 60 &&
                     parts.Second >= 0 && parts.Second < 60;
  if (!InRange(parts.Year) || !date.ok() || !clock) {
    return std::nullopt;
  }
  return local_days(date) + std::chrono::hours(parts.Hour) + std::chrono::minutes(parts.Minute) +
         std::chrono::seconds(parts.Second);
}

DateParts PartsOf(DateTime moment) {
  const std::chrono::year_month_day date = CalendarOf(moment);
  const std::chrono::hh_mm_ss clock(moment - DayOf(moment));
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count()),
          static_cast<int>(clock.seconds().count())};
}

DateTime DateAdd(DateInterval interval, std::int64_t count, DateTime moment) {
  constexpr std::int64_t kMostSeconds = std::int64_t{kLastYear} * 366 * 24 * 60 * 60;
  if (count < -kMostSeconds || count > kMostSeconds) {
    throw DateRangeError("a date outside the years 100 to 9999");
  }
  switch (interval) {
    case DateInterval::Years:
      return AddMonths(count * 12, moment);
    case DateInterval::Months:
      return AddMonths(count, moment);
    case DateInterval::Days:
      return Checked(moment + std::chrono::days(count));
    case DateInterval::Hours:
      return Checked(moment + std::chrono::hours(count));
    case DateInterval::Minutes:
      return Checked(moment + std::chrono::minutes(count));
    case DateInterval::Seconds:
      return Checked(moment + std::chrono::seconds(count));
  }
  return moment;
}

DateTime DateOnly(DateTime moment) { return DayOf(moment); }

std::int64_t DaysBetween(DateTime from, DateTime to) { return (DayOf(to) - DayOf(from)).count(); }

int WeekdayNumber(DateTime moment) {
  return static_cast<int>(std::chrono::weekday(DayOf(moment)).c_encoding()) + 1;
}

std::string WeekdayName(DateTime moment) {
  return std::string(kWeekdays.at(static_cast<std::size_t>(WeekdayNumber(moment) - 1)));
}

std::string LongDateText(DateTime moment, bool abbreviate) {
  const DateParts parts = PartsOf(moment);
  const std::string_view month = kMonths.at(static_cast<std::size_t>(parts.Month - 1));
  return WholeText(parts.Day) + " " + std::string(abbreviate ? month.substr(0, 3) : month) + " " +
         WholeText(parts.Year);
}

std::optional<DateTime> ParseLongDateText(std::string_view text) {
  const std::vector<std::string> pieces = Split(text, ' ');
  if (pieces.size() != 3) {
    return std::nullopt;
  }
  const std::optional<int> day = ReadDigits(pieces[0]);
  const std::optional<int> year = ReadDigits(pieces[2]);
  const int month = std::max(MonthOfName(pieces[1], true), MonthOfName(pieces[1], false));
  if (!day || !year || month == 0) {
    return std::nullopt;
  }
  return MakeDateTime({*year, month, *day});
}

std::string ShortDateText(DateTime moment) {
  const DateParts parts = PartsOf(moment);
  return WholeText(parts.Month) + "/" + WholeText(parts.Day) + "/" + PaddedWhole(parts.Year, 4);
}

std::string TimeAmPm(DateTime moment) {
  const DateParts parts = PartsOf(moment);
  return PaddedWhole(HourOfTwelve(parts.Hour), 2) + ":" + PaddedWhole(parts.Minute, 2) +
         HalfOfDay(parts.Hour);
}

std::string TimeSecondsAmPm(DateTime moment) {
  const DateParts parts = PartsOf(moment);
  return PaddedWhole(HourOfTwelve(parts.Hour), 2) + ":" + PaddedWhole(parts.Minute, 2) + ":" +
         PaddedWhole(parts.Second, 2) + HalfOfDay(parts.Hour);
}

std::string ShortTimeText(DateTime moment) {
  const DateParts parts = PartsOf(moment);
  return PaddedWhole(parts.Hour, 2) + ":" + PaddedWhole(parts.Minute, 2);
}

std::string StoredDateTimeText(DateTime moment) {
  const DateParts parts = PartsOf(moment);
  return PaddedWhole(parts.Year, 4) + "-" + PaddedWhole(parts.Month, 2) + "-" +
         PaddedWhole(parts.Day, 2) + " " + ShortTimeText(moment) + ":" +
         PaddedWhole(parts.Second, 2);
}

std::optional<DateTime> ParseDateTime(std::string_view text) {
  const std::size_t gap = text.find_first_of(" T");
  const std::optional<Numbers> date = ReadNumbers(text.substr(0, gap), '-');
  if (!date || date->Count != 3) {
    return std::nullopt;
  }
  const auto [year, month, day] = date->Values;
  DateParts parts{year, month, day};
  if (gap != std::string_view::npos && !ReadTime(text.substr(gap + 1), parts)) {
    return std::nullopt;
  }
  return MakeDateTime(parts);
}

std::string DateLiteral(DateTime moment) {
  const DateParts parts = PartsOf(moment);
  return "#" + PaddedWhole(parts.Month, 2) + "/" + PaddedWhole(parts.Day, 2) + "/" +
         PaddedWhole(parts.Year, 4) + " " + ShortTimeText(moment) + ":" +
         PaddedWhole(parts.Second, 2) + "#";
}

std::optional<DateTime> ParseDateLiteral(std::string_view text) {
  const std::vector<std::string> pieces = SplitWords(text);
  if (pieces.empty() || pieces.size() > 3) {
    return std::nullopt;
  }
  const std::optional<Numbers> date = ReadNumbers(pieces[0], '/');
  if (!date || date->Count != 3) {
    return std::nullopt;
  }
  const auto [month, day, year] = date->Values;
  DateParts parts{year, month, day};
  const bool read = (pieces.size() < 2 || ReadTime(pieces[1], parts)) &&
                    (pieces.size() < 3 || TakeHalf(UpperCase(pieces[2]), parts));
  return read ? MakeDateTime(parts) : std::nullopt;
}

int MonthNumber(std::string_view name) { return MonthOfName(name, false); }

int MonthBeginningWith(std::string_view letters) {
  constexpr std::size_t kFewestLetters = 3;
  const std::string begin = LowerCase(letters);
  const auto* found = std::find_if(kMonths.begin(), kMonths.end(), [&begin](std::string_view name) {
    return LowerCase(name.substr(0, begin.size())) == begin;
  });
  return begin.size() < kFewestLetters || found == kMonths.end()
             ? 0
             : static_cast<int>(found - kMonths.begin()) + 1;
}

std::string MonthNumberText(std::string_view name) {
  const int month = std::max(MonthOfName(name, false), MonthOfName(name, true));
  if (month == 0) {
    throw std::invalid_argument("a name that is no month");
  }
  return PaddedWhole(month, 2);
}

std::string OrdinalSuffix(int number) {
  switch (number) {
    case 1:
      return "st";
    case 2:
      return "nd";
    case 3:
      return "rd";
    default:
      return number >= 4 && number <= 12 ? "th" : "";
  }
}

Age AgeText(DateTime from, DateTime to) {
  const std::int64_t days = DaysBetween(from, to);
  if (days <= 30) {
    return {AgeWords(0, 0, days), 0};
  }
  const auto years = static_cast<float>(static_cast<double>(days) / kDaysOfYear);
  std::int64_t wholeYears = 0;
  std::int64_t rest = days;
  if (years >= 1) {
    const std::vector<std::string> pieces = Split(SingleText(years), '.');
    wholeYears = *ParseWhole(pieces[0]);
    rest = pieces.size() < 2 ? 0 : RoundToWhole(ToDouble("0." + pieces[1]) * kDaysOfYear);
  }
  std::int64_t wholeMonths = 0;
  std::int64_t restDays = rest;
  if (rest >= 30) {
    const double months = static_cast<double>(rest) / kDaysOfMonth;
    wholeMonths = Truncate(months);
    restDays = RoundToWhole((months - static_cast<double>(wholeMonths)) * kDaysOfMonth);
  }
  const auto age = static_cast<int>(wholeYears);
  if (restDays != 30) {
    return {AgeWords(wholeYears, wholeMonths, restDays), age};
  }
  return wholeMonths == 11 ? Age{AgeWords(wholeYears + 1, 0, 0), age}
                           : Age{AgeWords(wholeYears, wholeMonths + 1, 0), age};
}

}  // namespace orvex::core
