#include "exchange/jhd_reading.h"

#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/text_encoding.h"
#include "exchange/text_lines.h"

namespace orvex::exchange {

namespace {

// The lines by their numbers.
enum JhdLine : std::size_t {
  kMonth = 1,
  kDay = 2,
  kYear = 3,
  kTime = 4,
  kZone = 5,
  kLongitude = 6,
  kLatitude = 7,
  kPlace = 13,
  kCountry = 14
};

class JhdLines {
 public:
  explicit JhdLines(std::string_view bytes) : lines_(LinesOf(bytes)) {
    for (const FileLine& line : lines_) {
      if (core::HasControlCharacter(line.Text)) {
        throw practice::RefusedLine{line.Number, kControlCharacter};
      }
    }
  }

  // "" for a line that the file has not.
  std::string Text(JhdLine line) const {
    return line <= lines_.size() ? core::Trim(lines_[line - 1].Text) : "";
  }

  int Whole(JhdLine line, const char* name) const {
    const std::optional<std::int64_t> number = core::ParseWhole(Text(line));
    constexpr std::int64_t kLargest = 9999;
    if (!number || *number < 0 || *number > kLargest) {
      Refuse(line, name);
    }
    return static_cast<int>(*number);
  }

  // In whole seconds, its magnitude below `limit` hours or degrees, or that itself.
  std::int64_t Seconds(JhdLine line, const char* name, double limit) const {
    const std::optional<double> value = ReadMinutesBehindPoint(Text(line));
    if (!value || *value < -limit || *value > limit) {
      Refuse(line, name);
    }
    return core::RoundToWhole(*value * core::kSecondsOfHour);
  }

  [[noreturn]] void Refuse(JhdLine line, const char* name) const {
    throw practice::RefusedLine{
        line, line > lines_.size()
                  ? std::string("the file ends before its ") + name
                  : std::string(name) + ": " + Shown(Text(line)) + " could not be read"};
  }

 private:
  std::vector<FileLine> lines_;
};

core::DateTime LocalOfLines(const JhdLines& lines) {
  constexpr double kLastHour = 24;
  const int month = lines.Whole(kMonth, "month");
  const int day = lines.Whole(kDay, "day");
  const int year = lines.Whole(kYear, "year");
  const std::int64_t seconds = lines.Seconds(kTime, "time", kLastHour);
  const std::optional<core::DateTime> date = core::MakeDateTime({year, month, day});
  if (!date) {
    throw practice::RefusedLine{kYear,
                                "the first three lines are no date of the years 100 to 9999"};
  }
  if (*date < core::MakeDateTime({1582, 10, 15}).value()) {
    throw practice::RefusedLine{
        kYear, "before 15 October 1582 the file does not tell by which calendar it counts"};
  }
  if (seconds < 0 || seconds >= static_cast<std::int64_t>(kLastHour * core::kSecondsOfHour)) {
    lines.Refuse(kTime, "time");
  }
  return *date + std::chrono::seconds(seconds);
}

std::string DegreesText(std::int64_t seconds) {
  constexpr int kDecimals = 5;
  return core::DoubleText(core::ToDouble(
      core::FixedText(static_cast<double>(seconds) / core::kSecondsOfHour, kDecimals)));
}

FileBirth BirthOf(const JhdLines& lines, const std::string& name) {
  constexpr double kFarthestZone = 27;
  FileBirth birth;
  birth.Line = 1;
  birth.Name = name;
  birth.Local = LocalOfLines(lines);
  birth.ZoneHours =
      static_cast<double>(-lines.Seconds(kZone, "time zone", kFarthestZone)) / core::kSecondsOfHour;
  birth.SummerHours = 0;
  birth.Longitude = DegreesText(-lines.Seconds(kLongitude, "longitude", 180));
  birth.Latitude = DegreesText(lines.Seconds(kLatitude, "latitude", 90));
  birth.Place = lines.Text(kPlace);
  birth.Country = lines.Text(kCountry);
  return birth;
}

}  // namespace

std::optional<double> ReadMinutesBehindPoint(const std::string& text) {
  constexpr int kPlaces = 6;
  constexpr std::int64_t kPair = 100;
  constexpr std::int64_t kSixty = 60;
  if (text.find_first_not_of("+-.0123456789") != std::string::npos || !core::IsNumeric(text)) {
    return std::nullopt;
  }
  const double value = core::ToDouble(text);
  const bool isNegative = text.front() == '-';
  const std::string places = core::FixedText(isNegative ? -value : value, kPlaces);
  const std::size_t point = places.find('.');
  const std::int64_t behind = core::ParseWhole(places.substr(point + 1)).value();
  const std::int64_t minutes = behind / (kPair * kPair);
  const std::int64_t hundredths = behind % (kPair * kPair);  // of a second
  if (minutes >= kSixty || hundredths >= kSixty * kPair) {
    return std::nullopt;
  }
  const double whole =
      core::ToDouble(places.substr(0, point)) +
      static_cast<double>(minutes) / static_cast<double>(kSixty) +
      static_cast<double>(hundredths) / static_cast<double>(kPair) / core::kSecondsOfHour;
  return isNegative ? -whole : whole;
}

FileReading ReadJhd(std::string_view bytes, const std::string& name) {
  FileReading reading;
  try {
    reading.Births.push_back(BirthOf(JhdLines(bytes), name));
  } catch (const practice::RefusedLine& refused) {
    reading.Refused.push_back(refused);
  }
  return reading;
}

}  // namespace orvex::exchange
