// All periods of a life at once, for reports.
#pragma once

#include <array>
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

}  // namespace orvex::chart
