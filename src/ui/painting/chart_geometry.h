// Where the fields of the three regional chart styles lie.
#pragma once

#include <QLineF>
#include <QPolygonF>
#include <array>
#include <vector>

namespace orvex::ui {

// The field of a house or sign in the unit square, y downwards. The sign's number stands at Tip.
struct ChartField {
  QPolygonF Outline;
  QPointF Tip;
};

struct ChartGeometry {
  std::array<ChartField, 12> Fields;
  std::vector<QLineF> Lines;  // all borders once, the outer square too
  QRectF Middle;              // free room for the title; empty where the style has none
};

// 'N': fields by house, counted against the clock from the top. 'E': by sign, Aries at the top and
// on against the clock. 'S': by sign with the clock, Pisces in the upper left corner.
const ChartGeometry& GeometryOf(char style);

}  // namespace orvex::ui
