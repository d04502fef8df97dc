#include "transit/month_series.h"

#include "chart/zodiac_lookups.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"

namespace orvex::transit {

namespace {

// With two decimals the last of Pisces reads 360, which is the beginning of Aries.
double LongitudeOf(const core::Cell& cell) {
  constexpr double kCircle = 360;
  const double longitude = core::ToDouble(cell.SortKey);
  return longitude < kCircle ? longitude : longitude - kCircle;
}

void AddMarks(PlanetSeries& series) {
  const std::size_t row = series.Longitudes.size() - 1;
  const int sign = chart::RashiOfDegree(series.Longitudes[row]);
  if (sign != chart::RashiOfDegree(series.Longitudes[row - 1])) {
    series.Marks.push_back(
        {row, MarkKind::SignChange, series.Planet + " enters " + chart::RashiName(sign)});
  }
  if (series.Retrograde[row] != series.Retrograde[row - 1]) {
    series.Marks.push_back(
        {row, MarkKind::Station,
         series.Planet + " turns " + (series.Retrograde[row] ? "retrograde" : "direct")});
  }
}

}  // namespace

std::vector<PlanetSeries> MonthSeries(const core::Table& grid) {
  std::vector<PlanetSeries> all;
  for (std::size_t column = 1; column < grid.Columns.size(); ++column) {
    PlanetSeries series{grid.Columns[column].Caption, {}, {}, {}};
    for (const core::Row& row : grid.Rows) {
      const core::Cell& cell = row.Cells.at(column);
      if (cell.SortKey.empty()) {
        break;
      }
      series.Longitudes.push_back(LongitudeOf(cell));
      series.Retrograde.push_back(cell.Foreground == core::kRed);
      if (series.Longitudes.size() > 1) {
        AddMarks(series);
      }
    }
    if (!series.Longitudes.empty()) {
      all.push_back(std::move(series));
    }
  }
  return all;
}

}  // namespace orvex::transit
