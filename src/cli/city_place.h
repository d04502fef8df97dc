// Where the clocks of a command stand, and calendar files by them.
#pragma once

#include <string>
#include <vector>

#include "cli/context.h"
#include "exact/exact_sky.h"
#include "transit/calendar_file.h"

namespace orvex::cli {

struct CityPlace {
  exact::Place Where;
  double Hours = 0;              // east of Greenwich
  std::chrono::seconds Clock{};  // the same
};

// The user city, or the one whose id an option names. CommandFailed where there is none.
CityPlace CityPlaceOf(core::Session& session, const std::string& option);

// Now on the clock of a place; the clock of the run is that of the user city.
core::DateTime NowAt(const core::Session& session, const CityPlace& city);

// Writes events as calendar, made now; does nothing without a file.
void WriteCalendar(const core::Session& session, const std::string& file,
                   const std::vector<transit::CalendarEvent>& events);

}  // namespace orvex::cli
