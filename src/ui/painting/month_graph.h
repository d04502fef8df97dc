// The month of the grid as lines over the twelve signs: where everything stands, and its painting.
#pragma once

#include <array>
#include <optional>

#include "ui/painting/month_lines.h"

namespace orvex::ui {

struct SignBand {
  QRectF Box;
  GraphLabel Sign;
};

struct DayTick {
  double X = 0;
  GraphLabel Label;  // no text where the days stand too close for all to be named
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
