// The daylight of a sky view as one line: its twelve horas, the kaals, and where now is.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "panchang/sky_view.h"

namespace orvex::panchang {

// A stretch of the line, from 0 at its left end to 1 at its right.
struct StripPart {
  std::string Name;  // "Mars", "Rahu Kaal", "Gulika"
  double From = 0;
  double To = 0;
  std::string Times;  // "09:37 AM to 10:33 AM"
};

struct DayStrip {
  std::string Begin;  // "06:49 AM"
  std::string End;
  std::vector<StripPart> Horas;  // in their order; none where the Sun does not rise or set
  std::vector<StripPart> Kaals;  // from left to right, cut at the ends of the line
  std::optional<double> Now;     // nothing by night
};

// The line of a sky view at a moment of its city.
DayStrip DayStripOf(const SkyView& view, core::DateTime now);

}  // namespace orvex::panchang
