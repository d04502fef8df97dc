// One planet hour by hour over a day, or by five minutes over an hour, with sign, star and lords.
#pragma once

#include "core/table.h"
#include "transit/transit_position.h"

namespace orvex::transit {

inline constexpr int kHoursOfDay = 24;

// The first column is the hour or the minute; its cell and its row have the local moment, in the
// stored form, as tag.
enum class HourColumn { Time, Rashi, Degree, SignLord, StarLord, SubLord, Nakshatra, Pada };

// 24 rows, one an hour of the local date. `timeCaption` heads the first column. Where a lookup
// finds no row its cells stay empty.
core::Table BuildHourTable(core::Session& session, Planet planet, core::DateTime date,
                           float zoneHours, const std::string& timeCaption);

// Twelve rows, five minutes apart, from a local moment on.
core::Table BuildMinuteTable(core::Session& session, Planet planet, core::DateTime start,
                             float zoneHours);

}  // namespace orvex::transit
