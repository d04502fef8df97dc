// A house of a matter as it is marked everywhere: a round filled figure supports, one in a double
// ring is the main cusp, a dashed square denies. The shape tells it without colour.
#pragma once

#include <QRect>
#include <QString>

class QPainter;

namespace orvex::ui {

enum class HouseRole { None, Main, Supporting, Denying };

// The room of one mark in the present text size.
QSize HouseMarkSize();

// Draws the figure of a house in the middle of a box; without a role the quiet figure alone.
void DrawHouseMark(QPainter& painter, const QRect& box, const QString& house, HouseRole role);

// The marks of the lords of a period, a letter each: "●" round filled, "○" round hollow, "■" square
// filled, "□" square hollow. Any other letter leaves its place empty.
void DrawLordMarks(QPainter& painter, const QRect& box, const QString& marks);

// A tick or a cross in the middle of a box.
void DrawTick(QPainter& painter, const QRect& box, bool passed);

}  // namespace orvex::ui
