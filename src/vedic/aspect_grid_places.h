// Where the analyses of this folder read the aspect grid.
#pragma once

#include <cstddef>

#include "chart/horoscope_model.h"

namespace orvex::vedic {

// The first cell of a row of the grid; the cell of sign s stands s places on.
enum class GridColumn { Dir };

// The row of the houses and the first row of a planet.
enum class GridRow { House = 5, FirstPlanet };

constexpr GridColumn GridSign(int sign) {
  return static_cast<GridColumn>(static_cast<int>(GridColumn::Dir) + sign);
}

// The cell of the house whose cusp lies in a sign 1 to 12. std::out_of_range where the grid has
// none.
inline const core::Cell& GridHouse(const chart::HoroscopeModel& model, int sign) {
  return model.AspectGrid.At(static_cast<std::size_t>(GridRow::House), GridSign(sign));
}

}  // namespace orvex::vedic
