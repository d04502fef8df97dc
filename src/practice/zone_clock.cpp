#include "practice/zone_clock.h"

#include <date/tz.h>

#include <algorithm>

#include "core/exact_numbers.h"

namespace orvex::practice {

namespace {

constexpr const char* kMeanTime = "LMT";
constexpr double kDegreesOfHour = 15;

double HoursOf(std::chrono::seconds offset) {
  return static_cast<double>(offset.count()) / core::kSecondsOfHour;
}

const date::time_zone& FindZone(const std::string& zone) {
  try {
    return *date::locate_zone(zone);
  } catch (const std::runtime_error&) {
    throw ZoneError("The time zone \"" + zone + "\" is not in the zone database.");
  }
}

// The zone files end with 2037; a later day is read as the last day before of the same date and
// weekday, so that the rules in force now hold for it. 29 February goes with the day before.
core::DateTime WithinKnownYears(core::DateTime local) {
  constexpr int kLastKnownYear = 2037;
  constexpr int kFebruary = 2;
  constexpr int kLastSureDay = 28;
  core::DateParts parts = core::PartsOf(local);
  if (parts.Year <= kLastKnownYear) {
    return local;
  }
  if (parts.Month == kFebruary) {
    parts.Day = std::min(parts.Day, kLastSureDay);
  }
  const int weekday = core::WeekdayNumber(core::MakeDateTime(parts).value());
  parts.Year = kLastKnownYear;
  while (core::WeekdayNumber(core::MakeDateTime(parts).value()) != weekday) {
    --parts.Year;
  }
  return core::MakeDateTime(parts).value();
}

bool IsSummerTime(const date::sys_info& period) { return period.save.count() != 0; }

// The offset without summer time. The zone files say that a period is summer time, not by how much,
// so its neighbours tell. A zone may take another standard time as summer time begins or ends:
// a standard neighbour just one hour behind goes before the nearest one that differs at all.
std::chrono::seconds StandardOffset(const date::time_zone& zone, const date::sys_info& inForce) {
  constexpr int kMostChanges = 20;
  constexpr std::chrono::hours kUsualSave(1);
  constexpr std::chrono::hours kLargestSave(2);
  if (!IsSummerTime(inForce)) {
    return inForce.offset;
  }
  const auto saveOver = [&inForce](const date::sys_info& near) {
    const bool standard = !IsSummerTime(near) && near.abbrev != kMeanTime;
    return standard ? inForce.offset - near.offset : std::chrono::seconds(0);
  };
  date::sys_info after = zone.get_info(inForce.end);
  date::sys_info before = zone.get_info(inForce.begin - std::chrono::seconds(1));
  if (saveOver(after) == kUsualSave || saveOver(before) == kUsualSave) {
    return inForce.offset - kUsualSave;
  }
  for (int i = 0; i < kMostChanges; ++i) {
    for (const std::chrono::seconds save : {saveOver(after), saveOver(before)}) {
      if (save.count() != 0 && std::chrono::abs(save) <= kLargestSave) {
        return inForce.offset - save;
      }
    }
    after = IsSummerTime(after) ? zone.get_info(after.end) : after;
    before = IsSummerTime(before) ? zone.get_info(before.begin - std::chrono::seconds(1)) : before;
  }
  return inForce.offset - kUsualSave;
}

ZoneClock MeanTimeClock(double longitude) {
  const double hours =
      core::RoundHalfEven(longitude / kDegreesOfHour * core::kSecondsOfHour) / core::kSecondsOfHour;
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
  clock.StandardOffset = HoursOf(StandardOffset(known, info.first));
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

std::string ClockOffsetText(double hours) {
  constexpr int kSixty = 60;
  const std::int64_t whole = core::RoundToWhole(hours * core::kSecondsOfHour);
  const std::int64_t seconds = whole < 0 ? -whole : whole;
  const std::string text = core::PaddedWhole(seconds / kSixty / kSixty, 1) + ":" +
                           core::PaddedWhole(seconds / kSixty % kSixty, 2);
  return (whole < 0 ? "-" : "+") + text +
         (seconds % kSixty == 0 ? "" : ":" + core::PaddedWhole(seconds % kSixty, 2));
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
