// Which house a planet stands in, by sign and by cusp.
#pragma once

#include <vector>

#include "chart/chart_computation.h"

namespace orvex::chart {

// Gives each planet its rashi house, chalit house, star lord and sub lord, in three passes over all
// planets: by the signs of the cusps and the spans between them; then for planets in signs without
// a cusp; then for those that no span held. All degrees are compared in single precision. A house
// that stays empty stays without a value. LookupError for a degree that no sub holds.
void PlacePlanets(const core::ReferenceData& reference, const std::vector<CuspRow>& cusps,
                  std::vector<PlanetRow>& planets);

}  // namespace orvex::chart
