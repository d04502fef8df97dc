// What the clocks of a time zone showed on a date, by the system's zone database. A chart's offset
// stays the number that the user enters; this is what stands beside it.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "core/date_text.h"

namespace orvex::practice {

// Thrown for a zone that the database does not know.
class ZoneError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class ClockReading {
  Plain,
  Skipped,       // the clocks were put forward over this time: no clock showed it
  Twice,         // the clocks were put back: it came twice
  LocalMeanTime  // before the zone's first standard time
};

// Offsets in hours east of Greenwich.
struct ZoneClock {
  ClockReading Reading = ClockReading::Plain;
  double StandardOffset = 0;
  double OffsetInForce = 0;            // before the change, where the reading is Skipped or Twice
  std::optional<double> SecondOffset;  // after the change
  std::string Abbreviation;
};

// The clocks of a zone ("Asia/Kolkata") at a local wall-clock moment. Before the zone's first
// standard time every place kept its own mean time: both offsets are then that of `longitude`
// (degrees east), to the second. Years after 2037 follow the rules of the last known years.
ZoneClock ClocksOf(const std::string& zone, core::DateTime local, double longitude);

// An offset as it is entered: "5.5", "-3.5", at most four decimals.
std::string OffsetText(double hours);

// The same as clocks write it: "+5:30", "-4:00", with seconds where there are some, "+4:51:32".
std::string ClockOffsetText(double hours);

// What a reading means, in a sentence; "" for a plain one.
std::string ReadingText(const ZoneClock& clock);

}  // namespace orvex::practice
