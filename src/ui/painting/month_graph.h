// The month of the grid as lines over the twelve signs: where everything stands, and its painting.
#pragma once

#include <QPolygonF>
#include <array>
#include <optional>

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

struct SignBand {
  QRectF Box;
  GraphLabel Sign;
};

struct DayTick {
  double X = 0;
  GraphLabel Label;  // no text where the days stand too close for all to be named
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
  GraphLabel Code;  // beside the end of the line
};

struct MonthLayout {
  QRectF Plot;
  GraphLabel Title;
  GraphLabel Legend;
  std::array<SignBand, 12> Bands;  // Aries first, at the bottom
  std::vector<DayTick> Days;
  std::vector<PlanetLine> Lines;  // one a series
  std::optional<double> Today;
  GraphLabel TodayLabel;
};

MonthLayout LayOutMonth(const MonthPicture& picture, const QFont& font, const QRectF& area);

// The cell of the grid that a point of a planet's line, or its code, stands for: that of the
// nearest row. Nothing where no line is near.
std::optional<transit::CellPlace> CellAt(const MonthPicture& picture, const MonthLayout& layout,
                                         const QPointF& point);

// What stands at a point: a mark with the days between which it falls, or a planet with the date,
// its sign and degree in the nearest row. "" where nothing is near.
QString MonthHint(const MonthPicture& picture, const MonthLayout& layout, const QPointF& point);

void PaintMonth(QPainter& painter, const QRectF& area, const MonthPicture& picture, Ground ground);

}  // namespace orvex::ui
