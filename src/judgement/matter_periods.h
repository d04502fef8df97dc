// The antaras of a life ranked by how well their three lords give a matter.
#pragma once

#include <vector>

#include "chart/dasha_tree.h"
#include "core/table.h"

namespace orvex::judgement {

enum class MatterPeriodColumn { Dasha, Bhukti, Antara, From, Until, Age, Houses, Score };

// Local moments; To lies after From.
struct PeriodWindow {
  core::DateTime From{};
  core::DateTime To{};
};

// How far the window goes on from its begin where no end is given.
inline constexpr int kYearsOfPeriods = 10;

// A row for each antara that ends after the window's From and begins before its To. Age: whole
// years at From, "-" before the day of birth. Houses: the supporting houses (with the main cusp)
// that at least one of the three lords signifies, ascending. Score: over the three lords, each as
// often as it rules, supporting houses less denying ones, and one more for a fruitful lord. The
// highest score comes first, within one score the earliest. `matterPlanets` is the table of that
// name; the sort keys of From and Until are their stored forms.
core::Table BuildMatterPeriods(const std::vector<chart::TreeRow>& antaras,
                               const core::Table& matterPlanets, core::DateTime birth,
                               const PeriodWindow& window);

// The moment of a cell of From or Until.
core::DateTime MomentOfPeriod(const core::Cell& cell);

}  // namespace orvex::judgement
