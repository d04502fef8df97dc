#include "practice/zone_clock.h"

#include <date/tz.h>

#include "core/exact_numbers.h"

namespace orvex::practice {

namespace {

constexpr const char* kMeanTime = "LMT";
constexpr double kSecondsOfHour = 3600;
constexpr double kDegreesOfHour = 15;

double HoursOf(std::chrono::seconds offset) {
  return static_cast<double>(offset.count()) / kSecondsOfHour;
}

const date::time_zone& FindZone(const std::string& zone) {
  try {
    return *date::locate_zone(zone);
  } catch (const std::runtime_error&) {
    throw ZoneError("The time zone \"" + zone + "\" is not in the zone database.");
  }
}

// The zone files end with 2037; a later year is read as one of the same shape before.
core::DateTime WithinKnownYears(core::DateTime local) {
  constexpr int kLastKnownYear = 2037;
  core::DateParts parts = core::PartsOf(local);
  if (parts.Year <= kLastKnownYear) {
    return local;
  }
  const auto shapeOf = [](int year) {
    const auto firstDay = core::MakeDateTime({year, 1, 1}).value();
    return std::pair(core::WeekdayNumber(firstDay), std::chrono::year(year).is_leap());
  };
  const auto shape = shapeOf(parts.Year);
  parts.Year = kLastKnownYear;
  while (shapeOf(parts.Year) != shape) {
    --parts.Year;
  }
  return core::MakeDateTime(parts).value();
}

// The offset without summer time: that of the nearest time before which had none.
double StandardOffset(const date::time_zone& zone, date::sys_info info) {
  constexpr int kMostChanges = 20;
  for (int i = 0; info.save.count() != 0 && i < kMostChanges; ++i) {
    info = zone.get_info(info.begin - std::chrono::seconds(1));
  }
  return HoursOf(info.offset);
}

ZoneClock MeanTimeClock(double longitude) {
  const double hours =
      core::RoundHalfEven(longitude / kDegreesOfHour * kSecondsOfHour) / kSecondsOfHour;
  return {ClockReading::LocalMeanTime, hours, hours, std::nullopt, kMeanTime};
}

}  // namespace

ZoneClock ClocksOf(const std::string& zone, core::DateTime local, double longitude) {
  const date::time_zone& known = FindZone(zone);
  const date::local_info info =
      known.get_info(date::local_seconds(WithinKnownYears(local).time_since_epoch()));
  if (info.first.abbrev == kMeanTime) {
    return MeanTimeClock(longitude);
  }
  ZoneClock clock;
  clock.StandardOffset = StandardOffset(known, info.first);
  clock.OffsetInForce = HoursOf(info.first.offset);
  clock.Abbreviation = info.first.abbrev;
  if (info.result != date::local_info::unique) {
    clock.Reading =
        info.result == date::local_info::nonexistent ? ClockReading::Skipped : ClockReading::Twice;
    clock.SecondOffset = HoursOf(info.second.offset);
  }
  return clock;
}

std::string OffsetText(double hours) {
  constexpr int kDecimals = 4;
  return core::DoubleText(core::ToDouble(core::FixedText(hours, kDecimals)));
}

std::string ReadingText(const ZoneClock& clock) {
  switch (clock.Reading) {
    case ClockReading::Plain:
      return "";
    case ClockReading::Skipped:
      return "No clock showed this time: it was put forward from the offset " +
             OffsetText(clock.OffsetInForce) + " to " + OffsetText(*clock.SecondOffset) + ".";
    case ClockReading::Twice:
      return "This time came twice: first with the offset " + OffsetText(clock.OffsetInForce) +
             ", then with " + OffsetText(*clock.SecondOffset) + ".";
    case ClockReading::LocalMeanTime:
      return "Before the zone's first standard time: the local mean time of the longitude.";
  }
  return "";
}

}  // namespace orvex::practice
