// Which house a planet stands in, by sign and by cusp.
#pragma once

#include <vector>

#include "chart/chart_computation.h"

namespace orvex::chart {

// The house in which Aries falls where the first house has the sign `firstRashi` (1 to 12): 1
// to 12. Without a sign (0) it is 14.
int HouseOfAries(int firstRashi);

// The sign, 1 to 12, of a house (1 to 12) where Aries falls in `houseOfAries`: the way back.
int RashiOfHouse(int house, int houseOfAries);

// Gives each planet its rashi house, chalit house, star lord and sub lord, in three passes over all
// planets: by the signs of the cusps and the spans between them; then for planets in signs without
// a cusp; then for those that no span held. All degrees are compared in single precision. A house
// that stays empty stays without a value. LookupError for a degree that no sub holds.
void PlacePlanets(const core::ReferenceData& reference, const std::vector<CuspRow>& cusps,
                  std::vector<PlanetRow>& planets);

}  // namespace orvex::chart
