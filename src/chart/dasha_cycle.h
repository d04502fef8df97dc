// The nine planets of the Vimshottari cycle of 120 years.
#pragma once

#include <string>
#include <vector>

#include "core/reference_data.h"

namespace orvex::chart {

inline constexpr double kCycleYears = 120;

struct DashaPlanet {
  std::string Name;
  int Years = 0;
  int Sequence = 0;
};

// The planets in the order of their sequence.
using DashaCycle = std::vector<DashaPlanet>;

DashaCycle DashaCycleOf(const core::ReferenceData& reference);

// The planet of that name; nullptr where the cycle has none.
const DashaPlanet* FindDashaPlanet(const DashaCycle& cycle, const std::string& name);

// The whole cycle from the planet of that name on, around to the one before it; empty where the
// cycle has no such planet.
DashaCycle RotationFrom(const DashaCycle& cycle, const std::string& name);

}  // namespace orvex::chart
