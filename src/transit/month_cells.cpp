#include "transit/month_cells.h"

#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "transit/month_series.h"

namespace orvex::transit {

namespace {

MonthCell CellOf(const core::Cell& cell) {
  const std::vector<std::string> words = core::SplitWords(cell.Text);
  if (words.size() != 2) {
    return {};
  }
  return {static_cast<int>(core::ParseWhole(words.front()).value_or(0)), words.back(),
          cell.Foreground == core::kRed};
}

std::size_t ColumnOf(const core::Table& grid, const std::string& planet) {
  std::size_t column = 1;
  while (grid.Columns.at(column).Caption != planet) {
    ++column;
  }
  return column;
}

}  // namespace

std::vector<MonthCellRow> MonthCells(const core::Table& grid, const core::Row& dayBefore) {
  std::vector<MonthCellRow> cells;
  for (const core::Row& row : grid.Rows) {
    MonthCellRow day;
    for (std::size_t column = 1; column < grid.Columns.size(); ++column) {
      day.push_back(CellOf(row.Cells.at(column)));
    }
    cells.push_back(std::move(day));
  }
  core::Table longer = grid;
  longer.Rows.insert(longer.Rows.begin(), dayBefore);
  for (const PlanetSeries& series : MonthSeries(longer)) {
    const std::size_t planet = ColumnOf(grid, series.Planet) - 1;
    for (const SeriesMark& mark : series.Marks) {
      MonthCell& cell = cells.at(mark.Row - 1).at(planet);
      (mark.Kind == MarkKind::Station ? cell.Turns : cell.EntersSign) = true;
    }
  }
  return cells;
}

}  // namespace orvex::transit
