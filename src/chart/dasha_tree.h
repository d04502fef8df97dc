// All periods of a life at once, for reports.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::chart {

enum class TreeDepth { Bhukti = 2, Antara = 3, Sookshma = 4 };

// A period of the deepest level with the planets of all levels above it; names beyond the depth
// are empty.
struct TreeRow {
  std::array<std::string, 4> Planets;
  core::DateTime Start{};
  core::DateTime End{};
};

// The whole tree of the Dasha list: 81, 729 or 6561 rows in order. Empty where the list is.
std::vector<TreeRow> FullDashaTree(const core::ReferenceData& reference,
                                   const HoroscopeModel& model, TreeDepth depth);

// The lords of Dasha, Bhukti and Antara that run on a date; on the day on which two periods touch,
// those of the later one. Nothing before the first period and after the last.
std::optional<std::array<std::string, 3>> LordsRunningOn(const core::ReferenceData& reference,
                                                         const HoroscopeModel& model,
                                                         core::DateTime date);

}  // namespace orvex::chart
