// Draws charts in the three regional styles, for windows, pictures and print.
#pragma once

#include <QColor>
#include <QPainter>
#include <array>

#include "report/chart_picture.h"
#include "ui/painting/field_layout.h"

namespace orvex::ui {

struct ChartColors {
  QColor Paper;
  QColor Line;
  QColor Text;
  QColor Muted;  // sign numbers, cusp degrees, titles
  QColor Retrograde;
  QColor Tint;  // the ascendant's field
};

// Dark lines on white, and its counterpart for dark windows.
ChartColors PrintColors();
ChartColors DarkColors();

// What a drawn field holds, its cusp's degree beside the codes: no two boxes overlap, and none
// leaves the field while it can be helped.
struct DrawnField {
  QPolygonF Outline;
  QRectF SignBox;
  FieldText Codes;
};

// Where everything stands in a square of that side (pixels). Texts are parts of the side; where
// that would be less than `readable` pixels for a planet with room, they are as large as this.
std::array<DrawnField, 12> LayOutChart(const report::ChartPicture& picture, const QFont& font,
                                       const QRectF& square, double readable = 0);

// Draws into the largest square in the middle of `area`, with texts as above.
void PaintChart(QPainter& painter, const QRectF& area, const report::ChartPicture& picture,
                const ChartColors& colors, double readable = 0);

// The largest square in the middle of an area, with room for the border.
QRectF ChartSquare(const QRectF& area);

}  // namespace orvex::ui
