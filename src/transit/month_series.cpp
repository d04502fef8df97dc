#include "transit/month_series.h"

#include "chart/zodiac_lookups.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"

namespace orvex::transit {

namespace {

bool IsRetrograde(const core::Cell& cell) { return cell.Foreground == core::kRed; }

void AddMarks(const core::Cell& before, const core::Cell& cell, PlanetSeries& series) {
  const std::size_t row = series.Longitudes.size() - 1;
  const int sign = chart::RashiOfDegree(series.Longitudes[row]);
  if (sign != chart::RashiOfDegree(series.Longitudes[row - 1])) {
    series.Marks.push_back(
        {row, MarkKind::SignChange, series.Planet + " enters " + chart::RashiName(sign)});
  }
  if (IsRetrograde(cell) != IsRetrograde(before)) {
    series.Marks.push_back(
        {row, MarkKind::Station,
         series.Planet + " turns " + (IsRetrograde(cell) ? "retrograde" : "direct")});
  }
}

}  // namespace

std::vector<PlanetSeries> MonthSeries(const core::Table& grid) {
  std::vector<PlanetSeries> all;
  for (std::size_t column = 1; column < grid.Columns.size(); ++column) {
    PlanetSeries series{grid.Columns[column].Caption, {}, {}};
    const core::Cell* before = nullptr;
    for (const core::Row& row : grid.Rows) {
      const core::Cell& cell = row.Cells.at(column);
      if (cell.SortKey.empty()) {
        break;
      }
      series.Longitudes.push_back(core::ToDouble(cell.SortKey));
      if (before != nullptr) {
        AddMarks(*before, cell, series);
      }
      before = &cell;
    }
    if (!series.Longitudes.empty()) {
      all.push_back(std::move(series));
    }
  }
  return all;
}

}  // namespace orvex::transit
