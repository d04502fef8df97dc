// What the cells of the three regional chart styles hold. Geometry is the painter's.
#pragma once

#include <array>

#include "chart/horoscope_model.h"
#include "chart/south_grid.h"
#include "core/table.h"

namespace orvex::report {

using SouthGrid = std::array<std::array<core::Cell, chart::kSouthSide>, chart::kSouthSide>;

struct ChartCells {
  std::array<core::Cell, chart::kHouses> North;    // rashi chart by house
  std::array<core::Cell, chart::kHouses> NorthKP;  // chalit houses: cusp's degree, sign, planets
  std::array<core::Cell, chart::kHouses> East;     // rashi chart by sign
  std::array<core::Cell, chart::kHouses> EastKP;   // planets by chalit house, by the cusp's sign
  SouthGrid SouthRashi;
  SouthGrid SouthKP;  // cusp degrees and planets by chalit house
};

// The cells of a horoscope. A retrograde planet's code carries "~", a combust one's "*"; one that
// is both carries "*~".
ChartCells BuildChartCells(const chart::HoroscopeModel& model);

}  // namespace orvex::report
