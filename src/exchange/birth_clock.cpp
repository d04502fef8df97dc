#include "exchange/birth_clock.h"

#include <chrono>
#include <vector>

#include "core/exact_numbers.h"
#include "practice/offset_offer.h"
#include "practice/zone_clock.h"

namespace orvex::exchange {

namespace {

using practice::ClockReading;
using practice::ZoneClock;

// Carries the reason why a birth has no offset to the one place where it is given back.
struct NoClock {
  std::string Reason;
};

std::optional<ZoneClock> ClocksAt(const std::string& zone, core::DateTime local, double longitude) {
  try {
    return practice::ClocksOf(zone, local, longitude);
  } catch (const practice::ZoneError&) {
    return std::nullopt;
  }
}

core::DateTime Moved(core::DateTime moment, double hours) {
  return core::DateAdd(core::DateInterval::Seconds,
                       core::RoundToWhole(hours * core::kSecondsOfHour), moment);
}

// The zone whose clocks stand in for an offset that the file does not give.
std::string ZoneOf(const FileBirth& birth, const BirthPlace& place, core::DateTime moment,
                   double longitude) {
  return ClocksAt(birth.ZoneName, moment, longitude) ? birth.ZoneName : place.City.Zone;
}

// The offset that the clocks showed at an instant.
double OffsetAt(const std::string& zone, core::DateTime ut, double longitude) {
  constexpr int kDay = 24;
  for (const int guess : {0, -kDay, kDay}) {
    const std::optional<ZoneClock> near = ClocksAt(zone, Moved(ut, guess), longitude);
    std::vector<double> offsets;
    if (near) {
      offsets = {near->OffsetInForce, near->SecondOffset.value_or(near->OffsetInForce)};
    }
    for (const double offset : offsets) {
      const std::optional<ZoneClock> clock = ClocksAt(zone, Moved(ut, offset), longitude);
      if (clock && clock->Reading != ClockReading::Skipped &&
          (clock->OffsetInForce == offset || clock->SecondOffset == offset)) {
        return offset;
      }
    }
  }
  throw NoClock{"offset: the file gives none, and what the clocks showed is not known"};
}

// The offset that the clocks showed at a local time.
double OffsetShown(const std::string& zone, core::DateTime local, double longitude) {
  const std::optional<ZoneClock> clock = ClocksAt(zone, local, longitude);
  if (!clock) {
    throw NoClock{"offset: the file gives none, and what the clocks showed is not known"};
  }
  if (clock->SecondOffset) {
    throw NoClock{"offset: the file gives none. " + practice::ReadingText(*clock)};
  }
  return clock->OffsetInForce;
}

// What the clocks of the place added for summer time, by a moment that is near enough.
double SummerShown(const FileBirth& birth, const BirthPlace& place, double longitude) {
  const core::DateTime near =
      birth.Julian ? Moved(birth.Julian->Ut, *birth.ZoneHours) : birth.Local.value();
  const std::optional<ZoneClock> clock = ClocksAt(place.City.Zone, near, longitude);
  const bool isOfZone = clock && practice::OffsetText(clock->StandardOffset) ==
                                     practice::OffsetText(*birth.ZoneHours);
  return isOfZone ? clock->OffsetInForce - clock->StandardOffset : 0;
}

double OffsetOf(const FileBirth& birth, const BirthPlace& place, double longitude) {
  if (birth.ZoneHours) {
    return *birth.ZoneHours +
           (birth.SummerHours ? *birth.SummerHours : SummerShown(birth, place, longitude));
  }
  if (birth.Julian) {
    const core::DateTime ut = birth.Julian->Ut;
    return OffsetAt(ZoneOf(birth, place, ut, longitude), ut, longitude);
  }
  const core::DateTime local = birth.Local.value();
  return OffsetShown(ZoneOf(birth, place, local, longitude), local, longitude);
}

core::DateTime LocalOf(const FileBirth& birth, double offset) {
  if (!birth.Julian) {
    return birth.Local.value();
  }
  const core::DateTime byDay = Moved(birth.Julian->Ut, offset);
  const bool agree = birth.Local && std::chrono::abs(*birth.Local - byDay) <=
                                        std::chrono::seconds(birth.Julian->SecondsOpen);
  return agree ? *birth.Local : byDay;
}

}  // namespace

std::variant<BirthClock, std::string> ClockOf(const FileBirth& birth, const BirthPlace& place) {
  try {
    const double longitude = core::ToDouble(place.Longitude);
    const double offset = OffsetOf(birth, place, longitude);
    BirthClock clock;
    clock.Local = LocalOf(birth, offset);
    clock.Offset = practice::OffsetText(offset);
    clock.OffsetInFile = birth.ZoneHours ? clock.Offset : "";
    if (const auto shown = ClocksAt(place.City.Zone, clock.Local, longitude)) {
      clock.OffsetOfClocks = practice::OffsetText(shown->OffsetInForce);
      clock.AgreesWithClocks = practice::IsOffsetOfClocks(clock.Offset, *shown);
    }
    return clock;
  } catch (const NoClock& none) {
    return none.Reason;
  } catch (const core::DateRangeError&) {
    return "the moment lies outside the years 100 to 9999";
  }
}

}  // namespace orvex::exchange
