#include "ui/painting/chart_geometry.h"

#include "chart/south_grid.h"

namespace orvex::ui {

namespace {

QPointF Centroid(const QPolygonF& outline) {
  QPointF sum;
  for (const QPointF& corner : outline) {
    sum += corner;
  }
  return sum / static_cast<double>(outline.size());
}

// A point on the way from a corner to the middle of the field.
QPointF Inwards(const QPointF& corner, const QPolygonF& outline, double part) {
  return corner + (Centroid(outline) - corner) * part;
}

void AddSquare(const QRectF& square, std::vector<QLineF>& lines) {
  lines.emplace_back(square.topLeft(), square.topRight());
  lines.emplace_back(square.topRight(), square.bottomRight());
  lines.emplace_back(square.bottomRight(), square.bottomLeft());
  lines.emplace_back(square.bottomLeft(), square.topLeft());
}

// Four diamonds around the middle and eight triangles between them and the rim. The corner named
// first is the one beside which the sign's number stands.
ChartGeometry NorthGeometry() {
  // clang-format off
  const std::array<QPolygonF, 12> kOutlines = {{
      {{{0.50, 0.50}, {0.25, 0.25}, {0.50, 0.00}, {0.75, 0.25}}},
      {{{0.25, 0.25}, {0.00, 0.00}, {0.50, 0.00}}},
      {{{0.25, 0.25}, {0.00, 0.50}, {0.00, 0.00}}},
      {{{0.50, 0.50}, {0.25, 0.75}, {0.00, 0.50}, {0.25, 0.25}}},
      {{{0.25, 0.75}, {0.00, 1.00}, {0.00, 0.50}}},
      {{{0.25, 0.75}, {0.50, 1.00}, {0.00, 1.00}}},
      {{{0.50, 0.50}, {0.75, 0.75}, {0.50, 1.00}, {0.25, 0.75}}},
      {{{0.75, 0.75}, {1.00, 1.00}, {0.50, 1.00}}},
      {{{0.75, 0.75}, {1.00, 0.50}, {1.00, 1.00}}},
      {{{0.50, 0.50}, {0.75, 0.25}, {1.00, 0.50}, {0.75, 0.75}}},
      {{{0.75, 0.25}, {1.00, 0.00}, {1.00, 0.50}}},
      {{{0.75, 0.25}, {0.50, 0.00}, {1.00, 0.00}}},
  }};
  // clang-format on
  constexpr double kDiamondTip = 0.22;
  constexpr double kTriangleTip = 0.36;
  ChartGeometry geometry;
  for (std::size_t i = 0; i < kOutlines.size(); ++i) {
    const QPolygonF& outline = kOutlines.at(i);
    geometry.Fields.at(i) = {outline, Inwards(outline.first(), outline,
                                              outline.size() == 4 ? kDiamondTip : kTriangleTip)};
  }
  AddSquare({0, 0, 1, 1}, geometry.Lines);
  geometry.Lines.emplace_back(0, 0, 1, 1);
  geometry.Lines.emplace_back(1, 0, 0, 1);
  geometry.Lines.emplace_back(0.5, 0, 0, 0.5);
  geometry.Lines.emplace_back(0, 0.5, 0.5, 1);
  geometry.Lines.emplace_back(0.5, 1, 1, 0.5);
  geometry.Lines.emplace_back(1, 0.5, 0.5, 0);
  return geometry;
}

// A square of thirds; its corners are cut by diagonals and its middle is free. The corner named
// first is the one beside which the sign's number stands.
ChartGeometry EastGeometry() {
  constexpr double kNear = 0.30;
  constexpr double kFar = 0.70;
  // clang-format off
  const std::array<QPolygonF, 12> kOutlines = {{
      {{{kNear, 0}, {kFar, 0}, {kFar, kNear}, {kNear, kNear}}},
      {{{kNear, 0}, {kNear, kNear}, {0, 0}}},
      {{{0, kNear}, {0, 0}, {kNear, kNear}}},
      {{{0, kNear}, {kNear, kNear}, {kNear, kFar}, {0, kFar}}},
      {{{0, kFar}, {kNear, kFar}, {0, 1}}},
      {{{kNear, 1}, {0, 1}, {kNear, kFar}}},
      {{{kNear, 1}, {kNear, kFar}, {kFar, kFar}, {kFar, 1}}},
      {{{kFar, 1}, {kFar, kFar}, {1, 1}}},
      {{{1, kFar}, {1, 1}, {kFar, kFar}}},
      {{{1, kFar}, {kFar, kFar}, {kFar, kNear}, {1, kNear}}},
      {{{1, kNear}, {kFar, kNear}, {1, 0}}},
      {{{kFar, 0}, {1, 0}, {kFar, kNear}}},
  }};
  // clang-format on
  constexpr double kTip = 0.22;
  ChartGeometry geometry;
  for (std::size_t i = 0; i < kOutlines.size(); ++i) {
    const QPolygonF& outline = kOutlines.at(i);
    geometry.Fields.at(i) = {outline, Inwards(outline.first(), outline, kTip)};
  }
  AddSquare({0, 0, 1, 1}, geometry.Lines);
  for (const double at : {kNear, kFar}) {
    geometry.Lines.emplace_back(at, 0, at, 1);
    geometry.Lines.emplace_back(0, at, 1, at);
  }
  for (const double x : {0.0, 1.0}) {
    for (const double y : {0.0, 1.0}) {
      geometry.Lines.emplace_back(x, y, x == 0 ? kNear : kFar, y == 0 ? kNear : kFar);
    }
  }
  geometry.Middle = {kNear, kNear, kFar - kNear, kFar - kNear};
  return geometry;
}

ChartGeometry SouthGeometry() {
  constexpr double kSide = 0.25;
  constexpr double kTip = 0.20;
  ChartGeometry geometry;
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      if (chart::IsSouthMiddle(row, column)) {
        continue;
      }
      const int sign = chart::kSouthSigns.at(row).at(column);
      const QRectF cell(static_cast<double>(column) * kSide, static_cast<double>(row) * kSide,
                        kSide, kSide);
      const QPolygonF outline(
          {cell.topLeft(), cell.topRight(), cell.bottomRight(), cell.bottomLeft()});
      geometry.Fields.at(static_cast<std::size_t>(sign) - 1) = {
          outline, Inwards(cell.topLeft(), outline, kTip)};
      AddSquare(cell, geometry.Lines);
    }
  }
  geometry.Middle = {kSide, kSide, 2 * kSide, 2 * kSide};
  return geometry;
}

}  // namespace

const ChartGeometry& GeometryOf(char style) {
  static const ChartGeometry north = NorthGeometry();
  static const ChartGeometry east = EastGeometry();
  static const ChartGeometry south = SouthGeometry();
  switch (style) {
    case 'N':
      return north;
    case 'E':
      return east;
    default:
      return south;
  }
}

}  // namespace orvex::ui
