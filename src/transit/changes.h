// When within the days of a month, or within one day, the planets change.
#pragma once

#include <vector>

#include "core/session.h"
#include "core/table.h"
#include "exact/exact_sky.h"

namespace orvex::transit {

enum class ChangeColumn { Date, Time, Planet, Change };

// Every entry of these planets into another sign, star or sub and every station from one local
// moment up to another, in the order of their time, then of the planets: "Moon enters the sub of
// Saturn", "Mercury turns retrograde". Where sign, star and sub change at once, the highest is
// told. Positions are those of the reading to the second; times are cut to the minute. `zoneHours`
// lie east of Greenwich. The tag of a row is its moment in the stored form, with its second.
core::Table BuildChanges(core::Session& session, const std::vector<exact::Point>& planets,
                         core::DateTime from, core::DateTime to, float zoneHours);

// The changes of all nine planets in a month, 1 to 12. std::out_of_range for a month outside the
// calendar.
core::Table ChangesOfMonth(core::Session& session, int month, int year, float zoneHours);

}  // namespace orvex::transit
