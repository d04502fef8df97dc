// The month of the grid as lines: each planet's longitudes with its stations and changes of sign.
#pragma once

#include <string>
#include <vector>

#include "core/table.h"

namespace orvex::transit {

enum class MarkKind { SignChange, Station };

// What changed between the row before and `Row`.
struct SeriesMark {
  std::size_t Row = 0;
  MarkKind Kind = MarkKind::SignChange;
  std::string Text;  // "Mars enters Leo", "Mercury turns retrograde"
};

struct PlanetSeries {
  std::string Planet;
  std::vector<double> Longitudes;  // degrees from 0 to below 360, one a row of the grid
  std::vector<bool> Retrograde;    // likewise
  std::vector<SeriesMark> Marks;
};

// One series a planet column of the grid; a planet without positions has none.
std::vector<PlanetSeries> MonthSeries(const core::Table& grid);

}  // namespace orvex::transit
