#include "exchange/aaf_fields.h"

#include <date/julian.h>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/text_encoding.h"

namespace orvex::exchange {

namespace {

constexpr int kSixty = 60;
constexpr double kSecondsOfDay = 86400;
constexpr double kDayOf1970 = 2440587.5;

// The first day of the Gregorian calendar.
core::DateTime CalendarReform() { return core::MakeDateTime({1582, 10, 15}).value(); }

// The whole number of `least` to `most` digits and nothing else.
std::optional<int> Digits(const std::string& text, std::size_t least, std::size_t most) {
  if (text.size() < least || text.size() > most ||
      text.find_first_not_of("0123456789") != std::string::npos) {
    return std::nullopt;
  }
  return static_cast<int>(core::ParseWhole(text).value());
}

std::optional<core::DateTime> JulianDate(int year, int month, int day) {
  const julian::year_month_day date{julian::year(year), julian::month(static_cast<unsigned>(month)),
                                    julian::day(static_cast<unsigned>(day))};
  constexpr int kFirstYear = 100;
  if (!date.ok() || year < kFirstYear) {
    return std::nullopt;
  }
  const core::DateTime midnight(date::sys_days(date).time_since_epoch());
  return core::PartsOf(midnight).Year < kFirstYear ? std::nullopt : std::optional(midnight);
}

// Seconds from minutes and, where they are there, seconds: "30", "30:05"; nothing for any other
// text.
std::optional<int> SecondsOfMinutes(const std::string& text) {
  const std::vector<std::string> parts = core::Split(text, ':');
  const std::optional<int> minutes = Digits(parts.front(), 2, 2);
  const std::optional<int> seconds = parts.size() == 2   ? Digits(parts.back(), 2, 2)
                                     : parts.size() == 1 ? std::optional(0)
                                                         : std::nullopt;
  if (!minutes || !seconds || *minutes >= kSixty || *seconds >= kSixty) {
    return std::nullopt;
  }
  return *minutes * kSixty + *seconds;
}

// "31:12", without the seconds where there are none.
std::string MinutesText(std::int64_t seconds) {
  return core::PaddedWhole(seconds / kSixty % kSixty, 2) +
         (seconds % kSixty == 0 ? "" : ":" + core::PaddedWhole(seconds % kSixty, 2));
}

std::string AngleText(double degrees, const char* positive, const char* negative, double farthest) {
  if (degrees < -farthest || degrees > farthest) {
    return kEmptyField;
  }
  const std::int64_t whole = core::RoundToWhole(degrees * core::kSecondsOfHour);
  const std::int64_t seconds = whole < 0 ? -whole : whole;
  return core::WholeText(seconds / core::kSecondsOfHour) + (whole < 0 ? negative : positive) +
         MinutesText(seconds);
}

}  // namespace

std::optional<core::DateTime> ReadAafDate(const std::string& text) {
  constexpr std::size_t kParts = 3;
  std::string digits = core::LowerCase(text);
  char calendar = ' ';
  if (!digits.empty() && (digits.back() == 'g' || digits.back() == 'j')) {
    calendar = digits.back();
    digits.pop_back();
  }
  const std::vector<std::string> parts = core::Split(digits, '.');
  if (parts.size() != kParts) {
    return std::nullopt;
  }
  const std::optional<int> day = Digits(parts[0], 1, 2);
  const std::optional<int> month = Digits(parts[1], 1, 2);
  const std::optional<int> year = Digits(parts[2], 3, 4);
  if (!day || !month || !year) {
    return std::nullopt;
  }
  const std::optional<core::DateTime> gregorian = core::MakeDateTime({*year, *month, *day});
  const bool isEarly = gregorian ? *gregorian < CalendarReform() : *year < 1582;
  const bool isJulian = calendar == 'j' || (calendar == ' ' && isEarly);
  return isJulian ? JulianDate(*year, *month, *day) : gregorian;
}

std::string AafDate(core::DateTime date) {
  const core::DateParts parts = core::PartsOf(date);
  return core::WholeText(parts.Day) + "." + core::WholeText(parts.Month) + "." +
         core::WholeText(parts.Year) + (date < CalendarReform() ? "g" : "");
}

std::optional<core::TimeOfDay> ReadAafTime(const std::string& text) {
  constexpr int kHours = 24;
  const std::size_t colon = text.find(':');
  const std::optional<int> hour = Digits(text.substr(0, colon), 1, 2);
  if (colon == std::string::npos || !hour || *hour >= kHours) {
    return std::nullopt;
  }
  const std::optional<int> seconds = SecondsOfMinutes(text.substr(colon + 1));
  return seconds ? std::optional(core::TimeOfDay(*hour * core::kSecondsOfHour + *seconds))
                 : std::nullopt;
}

std::string AafTime(core::DateTime moment) {
  const std::int64_t seconds = core::TimeOfDayOf(moment).count();
  return core::WholeText(seconds / core::kSecondsOfHour) + ":" + MinutesText(seconds);
}

std::optional<double> ReadAafZone(const std::string& text) {
  const std::string zone = core::LowerCase(text);
  const std::size_t letter = zone.find('h');
  if (letter == std::string::npos || letter + 1 >= zone.size()) {
    return std::nullopt;
  }
  const char half = zone[letter + 1];
  const std::optional<int> hours = Digits(zone.substr(0, letter), 1, 2);
  const std::optional<int> seconds = SecondsOfMinutes(zone.substr(letter + 2));
  if (!hours || !seconds || (half != 'e' && half != 'w')) {
    return std::nullopt;
  }
  const double east =
      static_cast<double>(*hours * core::kSecondsOfHour + *seconds) / core::kSecondsOfHour;
  return half == 'w' && east != 0 ? -east : east;
}

std::string AafZone(double hours) {
  const std::int64_t whole = core::RoundToWhole(hours * core::kSecondsOfHour);
  const std::int64_t seconds = whole < 0 ? -whole : whole;
  return core::WholeText(seconds / core::kSecondsOfHour) + (whole < 0 ? "hW" : "hE") +
         MinutesText(seconds);
}

std::optional<double> ReadAafSummer(const std::string& text) {
  constexpr double kMost = 3;
  const std::optional<double> hours = core::ParseNumber(text);
  const bool fits =
      hours && *hours >= 0 && *hours <= kMost && core::RoundHalfEven(*hours * 2) == *hours * 2;
  return fits ? hours : std::nullopt;
}

std::optional<JulianMoment> ReadAafJulianDay(const std::string& text) {
  // The decimals of which a written day has too few to name a second, yet enough for its minute.
  constexpr std::size_t kCoarse = 3;
  constexpr std::size_t kLessCoarse = 4;
  if (text.find_first_not_of("0123456789.") != std::string::npos || !core::IsNumeric(text)) {
    return std::nullopt;
  }
  const double seconds = (core::ToDouble(text) - kDayOf1970) * kSecondsOfDay;
  const auto moment = [](int year, int month, int day) {
    return core::MakeDateTime({year, month, day}).value().time_since_epoch().count();
  };
  if (seconds < static_cast<double>(moment(100, 1, 1)) ||
      seconds > static_cast<double>(moment(9999, 12, 31))) {
    return std::nullopt;
  }
  const std::size_t point = text.find('.');
  const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
  const int open = decimals == kCoarse ? 44 : decimals == kLessCoarse ? 5 : 0;
  return JulianMoment{core::DateTime(std::chrono::seconds(core::RoundToWhole(seconds))), open};
}

std::string AafJulianDay(core::DateTime ut) {
  constexpr int kDecimals = 5;
  return core::FixedText(
      kDayOf1970 + static_cast<double>(ut.time_since_epoch().count()) / kSecondsOfDay, kDecimals);
}

std::string AafLatitude(double degrees) { return AngleText(degrees, "N", "S", 90); }

std::string AafLongitude(double degrees) { return AngleText(degrees, "E", "W", 180); }

std::string AafText(const std::string& text) {
  const std::string plain =
      core::Trim(core::ReplaceAll(core::WithoutControlCharacters(text), ",", ";"));
  return plain.empty() ? kEmptyField : plain == kEmptyField ? "**" : plain;
}

}  // namespace orvex::exchange
