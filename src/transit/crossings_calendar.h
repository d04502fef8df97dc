// Crossings for a user's calendar.
#pragma once

#include "exact/crossings.h"
#include "transit/calendar_file.h"

namespace orvex::transit {

// An entry of one hour for each change of lords; the first span only continues what held before.
std::vector<CalendarEvent> CrossingEvents(const exact::ExactZodiac& zodiac,
                                          const exact::CrossingSearch& search,
                                          const std::vector<exact::Crossing>& crossings);

}  // namespace orvex::transit
