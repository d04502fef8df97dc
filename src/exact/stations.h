// When a planet turns.
#pragma once

#include <vector>

#include "exact/exact_sky.h"

namespace orvex::exact {

// A station: the first whole second of the new direction, in UT.
struct Station {
  core::DateTime Moment{};
  bool Retrograde = false;  // the direction from there on
};

// The stations of a planet after `from` and up to `to`, both in UT, in order: where its speed
// changes its sign, none taken as direct. Also the short direct stretches of the true node are
// found. Sun, Moon and the mean nodes never turn. std::invalid_argument for the Ascendant.
std::vector<Station> Stations(const ExactSky& sky, Point planet, core::DateTime from,
                              core::DateTime to);

}  // namespace orvex::exact
