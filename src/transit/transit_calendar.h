// What of the transit tools goes into a user's calendar.
#pragma once

#include "transit/calendar_file.h"
#include "transit/find_transit_tool.h"
#include "transit/monthly_grid.h"

namespace orvex::transit {

// The month of a grid: an entry of the whole day for each change of sign and each station, on the
// first day that shows it, the day before the month's first taken into account. The description
// has all positions of that day. Month and year as for CreateGrid.
std::vector<CalendarEvent> GridEvents(core::Session& session, const GridView& view, int month,
                                      int year);

// Found transits of the user city: an entry of one hour each, the hour in which the planet passes.
std::vector<CalendarEvent> PassageEvents(const core::Session& session,
                                         const std::vector<FindResult>& results);

}  // namespace orvex::transit
