#include "ui/painting/day_graph.h"

#include <algorithm>
#include <cmath>

#include "chart/sign_degree.h"
#include "chart/zodiac_lookups.h"

namespace orvex::ui {

namespace {

constexpr double kSides = 8;  // pixels left and right of the signs

// How much a code at a place would hide.
int CostOf(const QRectF& box, const std::vector<PlanetLine>& lines, const QRectF& plot) {
  constexpr int kOutside = 100;
  constexpr int kCode = 20;
  int cost = plot.contains(box) ? 0 : kOutside;
  for (const PlanetLine& line : lines) {
    cost += line.Code.Box.intersects(box) ? kCode : 0;
    for (const LineRun& run : line.Runs) {
      for (qsizetype i = 1; i < run.Points.size(); ++i) {
        const QRectF step = QRectF(run.Points[i - 1], run.Points[i]).normalized();
        cost += step.adjusted(-1, -1, 1, 1).intersects(box) ? 1 : 0;
      }
    }
    for (const PlacedMark& mark : line.Marks) {
      cost += box.contains(mark.At) ? 2 : 0;
    }
  }
  return cost;
}

// Beside its own line, on the row next to `wanted` where it hides least; at the right before the
// left.
GraphLabel CodeBeside(std::size_t which, const MonthPicture& picture,
                      const std::vector<PlanetLine>& lines, const MonthScale& scale,
                      const QFont& font) {
  const transit::PlanetSeries& series = picture.Series[which];
  const auto rows = static_cast<int>(series.Longitudes.size());
  const int wanted = static_cast<int>(which * 5) % std::max(1, rows);
  const QString code = Shown(chart::PlanetCode(series.Planet));
  GraphLabel best;
  int least = -1;
  for (int row = 0; row < rows; ++row) {
    const QPointF at = scale.At(row, series.Longitudes[static_cast<std::size_t>(row)]);
    for (const double side : {1.0, -1.0}) {
      GraphLabel label = LabelAt(code, font, at);
      label.Box.translate(side * (label.Box.width() / 2 + kAir), 0);
      const int cost = CostOf(label.Box, lines, scale.Plot) * rows + std::abs(row - wanted);
      if (least < 0 || cost < least) {
        least = cost;
        best = label;
      }
    }
  }
  return best;
}

}  // namespace

DayGraphLayout LayOutDayGraph(const MonthPicture& picture, const DayRows& rows, double width,
                              const QFont& head, const QFont& codes) {
  const auto days = static_cast<double>(std::max<std::size_t>(picture.Days.size(), 1));
  DayGraphLayout layout;
  layout.Scale = {QRectF(kSides, rows.First, std::max(1.0, width - 2 * kSides), days * rows.Height),
                  rows.Height, DaysRun::Down};
  for (std::size_t i = 0; i < layout.Signs.size(); ++i) {
    const auto sign = static_cast<int>(i) + 1;
    layout.Signs.at(i) = LabelAt(chart::kSignLetters.at(i), head,
                                 {layout.Scale.SignBox(sign).center().x(), rows.Head / 2});
  }
  for (const transit::PlanetSeries& series : picture.Series) {
    layout.Lines.push_back(LineOf(series, layout.Scale));
  }
  for (std::size_t i = 0; i < layout.Lines.size(); ++i) {
    layout.Lines[i].Code = CodeBeside(i, picture, layout.Lines, layout.Scale, codes);
  }
  return layout;
}

QRectF DayBox(const DayGraphLayout& layout, std::size_t row) {
  const MonthScale& scale = layout.Scale;
  return {scale.Plot.left(), scale.Plot.top() + static_cast<double>(row) * scale.DayLength,
          scale.Plot.width(), scale.DayLength};
}

}  // namespace orvex::ui
