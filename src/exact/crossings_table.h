// The crossings as a table.
#pragma once

#include "core/table.h"
#include "exact/crossings.h"

namespace orvex::exact {

enum class CrossingColumn { From, Until, Position, R, SignLord, StarLord, SubLord, SubSubLord };

// A row a span. Times are local: UT plus the offset, in the stored form.
core::Table CrossingsTable(const ExactZodiac& zodiac, const std::vector<Crossing>& crossings,
                           std::chrono::seconds offset);

// An offset in hours as whole seconds.
std::chrono::seconds OffsetOf(double hours);

// What a change from one span to the next is: "Moon enters Taurus", "Moon enters the star of Sun",
// "Moon enters the sub of Saturn", "Moon enters the sub-sub of Venus"; the highest that changes.
// Signs and stars are told apart by their place, so that also a step between two signs of one lord
// counts.
std::string ChangeText(const ExactZodiac& zodiac, const std::string& name, Units before,
                       Units after, Depth depth);

}  // namespace orvex::exact
