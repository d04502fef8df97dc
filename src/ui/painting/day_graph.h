// The month beside its grid: signs across and days down, each day as high as its row in the grid,
// so that an eye goes from a cell to the line at its side.
#pragma once

#include <array>

#include "ui/painting/month_lines.h"

namespace orvex::ui {

// Where the rows of the grid stand, in pixels of the graph; the first one above its top where the
// grid is scrolled.
struct DayRows {
  double Head = 0;  // height of the head
  double First = 0;
  double Height = 0;
};

struct DayGraphLayout {
  MonthScale Scale;
  std::array<GraphLabel, 12> Signs;  // in the head, Aries first
  std::vector<PlanetLine> Lines;     // one a series; each code beside its line
};

// The codes stand where they touch no line and no other code, as far as there is such a place.
DayGraphLayout LayOutDayGraph(const MonthPicture& picture, const DayRows& rows, double width,
                              const QFont& head, const QFont& codes);

// The box of a day across all signs.
QRectF DayBox(const DayGraphLayout& layout, std::size_t row);

}  // namespace orvex::ui
