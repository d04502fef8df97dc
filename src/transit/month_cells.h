// What each cell of the monthly grid tells at a glance: the sign and the degree within it, and
// whether the planet came into the sign or turned since the day before.
#pragma once

#include <string>
#include <vector>

#include "core/table.h"

namespace orvex::transit {

struct MonthCell {
  int Sign = 0;        // 1 Aries to 12 Pisces; 0 where the planet has no position
  std::string Degree;  // within the sign, two decimals as the grid shows them
  bool Retrograde = false;
  bool EntersSign = false;
  bool Turns = false;  // into the motion that Retrograde tells
};

// The cells of a day, a planet column of the grid each.
using MonthCellRow = std::vector<MonthCell>;

// A row for each row of the grid. `dayBefore` is the row of the day before its first, in the same
// columns.
std::vector<MonthCellRow> MonthCells(const core::Table& grid, const core::Row& dayBefore);

}  // namespace orvex::transit
