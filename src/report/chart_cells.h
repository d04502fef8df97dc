// What the cells of the three regional chart styles hold. Geometry is the painter's.
#pragma once

#include <array>

#include "chart/horoscope_model.h"
#include "chart/south_grid.h"
#include "core/table.h"

namespace orvex::report {

// A cell of a South grid with the number of its sign, 0 in the middle.
struct SouthSignCell : core::Cell {
  int Sign = 0;
};

using SouthGrid = std::array<std::array<SouthSignCell, chart::kSouthSide>, chart::kSouthSide>;

// A grid whose cells have their signs and nothing else.
SouthGrid EmptySouthGrid();

struct ChartCells {
  std::array<core::Cell, chart::kHouses> North;    // rashi chart by house
  std::array<core::Cell, chart::kHouses> NorthKP;  // chalit houses: cusp's degree, sign, planets
  std::array<core::Cell, chart::kHouses> East;     // rashi chart by sign
  std::array<core::Cell, chart::kHouses> EastKP;   // planets by chalit house, by the cusp's sign
  SouthGrid SouthRashi = EmptySouthGrid();
  SouthGrid SouthKP = EmptySouthGrid();  // cusp degrees and planets by chalit house
};

// The cells of a horoscope. A retrograde planet's code carries "~", a combust one's "*"; one that
// is both carries "*~".
ChartCells BuildChartCells(const chart::HoroscopeModel& model);

}  // namespace orvex::report
