#include "chart/dasha_cycle.h"

#include <algorithm>

namespace orvex::chart {

DashaCycle DashaCycleOf(const core::ReferenceData& reference) {
  DashaCycle cycle;
  for (const core::PlanetInfo& planet : reference.Planets) {
    cycle.push_back({planet.PlanetName, planet.DashaYears, planet.DashaSequence});
  }
  std::sort(cycle.begin(), cycle.end(),
            [](const DashaPlanet& a, const DashaPlanet& b) { return a.Sequence < b.Sequence; });
  return cycle;
}

const DashaPlanet* FindDashaPlanet(const DashaCycle& cycle, const std::string& name) {
  const auto found = std::find_if(cycle.begin(), cycle.end(), [&name](const DashaPlanet& planet) {
    return planet.Name == name;
  });
  return found == cycle.end() ? nullptr : &*found;
}

DashaCycle RotationFrom(const DashaCycle& cycle, const std::string& name) {
  const DashaPlanet* first = FindDashaPlanet(cycle, name);
  if (first == nullptr) {
    return {};
  }
  DashaCycle rotation = cycle;
  std::rotate(rotation.begin(), rotation.begin() + (first - cycle.data()), rotation.end());
  return rotation;
}

}  // namespace orvex::chart
