// A month's planets as lines over signs and days, whichever way the days run: the lines themselves,
// their marks, and what stands near a point.
#pragma once

#include <QPolygonF>
#include <optional>
#include <vector>

#include "transit/month_series.h"
#include "transit/monthly_grid.h"
#include "ui/painting/graph_style.h"

namespace orvex::ui {

// A month as the grid has it. Rows count from 0, one a day.
struct MonthPicture {
  std::string Title;
  core::Table Grid;
  std::vector<core::DateTime> Days;
  std::vector<transit::PlanetSeries> Series;
  std::optional<std::size_t> Today;  // its row; nothing in another month
};

MonthPicture PictureOfMonth(const transit::MonthGrid& grid, core::DateTime today);

enum class DaysRun { Across, Down };

// From days and longitudes to the plot. A row stands in the middle of its day. Where days run
// across, Aries is at the bottom; where they run down, at the left.
struct MonthScale {
  QRectF Plot;
  double DayLength = 0;  // pixels
  DaysRun Days = DaysRun::Across;

  QPointF At(double row, double longitude) const;
  // All days of a sign, 1 Aries to 12 Pisces.
  QRectF SignBox(int sign) const;
  // The row whose day a point stands in, between 0 and the last of so many.
  std::size_t RowAt(const QPointF& point, std::size_t rows) const;
};

// A run of a planet's line that neither turns nor leaves the picture at 360 or 0 degrees.
struct LineRun {
  QPolygonF Points;
  bool Retrograde = false;
};

struct PlacedMark {
  QPointF At;
  transit::SeriesMark Mark;
  bool Retrograde = false;  // of the motion after it
};

struct PlanetLine {
  std::vector<LineRun> Runs;
  std::vector<PlacedMark> Marks;
  QPointF End;
  GraphLabel Code;  // the planet's two letters; placed by the graph
};

// The line of a series, without its code.
PlanetLine LineOf(const transit::PlanetSeries& series, const MonthScale& scale);

// The cell of the grid that a point of a planet's line, or its code, stands for: that of the
// nearest row. Nothing where no line is near.
std::optional<transit::CellPlace> CellNear(const MonthPicture& picture,
                                           const std::vector<PlanetLine>& lines,
                                           const MonthScale& scale, const QPointF& point);

// What stands at a point: a mark with the days between which it falls, or a planet with the date,
// its sign and degree in the nearest row. "" where nothing is near.
QString HintNear(const MonthPicture& picture, const std::vector<PlanetLine>& lines,
                 const MonthScale& scale, const QPointF& point);

}  // namespace orvex::ui
