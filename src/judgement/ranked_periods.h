// The ranked periods as they are read: each with its rank, how many of its lords are fruitful, and
// which of the three signifies each house.
#pragma once

#include "core/table.h"
#include "judgement/matters.h"

namespace orvex::judgement {

// The columns of the table of periods between the rank and the count of fruitful lords; behind them
// a column a house: main cusp, supporting, denying.
enum class RankedColumn {
  Rank,
  Dasha,
  Bhukti,
  Antara,
  From,
  Until,
  Age,
  Houses,
  Score,
  Fruitful,
  FirstHouse
};

// A mark for each of the three lords, filled where it signifies the house: round of a house that
// gives the matter, square of one that denies it.
inline constexpr const char* kGives = "●";
inline constexpr const char* kGivesNot = "○";
inline constexpr const char* kDenies = "■";
inline constexpr const char* kDeniesNot = "□";

// The rows of `matterPeriods` in their order. Fruitful: "2 of 3", each lord counted as often as it
// rules. The tag of a row is the begin of its period in the stored form.
core::Table BuildRankedPeriods(const core::Table& matterPeriods, const core::Table& matterPlanets,
                               const Matter& matter);

}  // namespace orvex::judgement
