#include "ui/painting/month_graph.h"

namespace orvex::ui {

namespace {

constexpr double kLine = 1.8;
constexpr double kDot = 3.4;      // radius of a change of sign
constexpr double kStation = 8.5;  // radius of a station
constexpr double kLetter = 0.78;  // of the text, inside a station

void PaintBands(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  for (std::size_t i = 0; i < layout.Bands.size(); ++i) {
    const SignBand& band = layout.Bands.at(i);
    painter.fillRect(band.Box, i % 2 == 0 ? colors.Band : colors.Paper);
    DrawLabel(painter, band.Sign, painter.font(), colors.Text);
  }
}

void PaintDays(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  constexpr double kTick = 4;
  const QFont font = Scaled(painter.font(), kSmallText);
  for (const DayTick& day : layout.Days) {
    painter.setPen(QPen(colors.Grid, kHair));
    painter.drawLine(QPointF(day.X, layout.Plot.top()), QPointF(day.X, layout.Plot.bottom()));
    painter.setPen(QPen(colors.Frame, kHair));
    painter.drawLine(QPointF(day.X, layout.Plot.bottom()),
                     QPointF(day.X, layout.Plot.bottom() + kTick));
    DrawLabel(painter, day.Label, font, colors.Muted);
  }
}

void PaintFrame(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  painter.setBrush(Qt::NoBrush);
  for (const SignBand& band : layout.Bands) {
    painter.setPen(QPen(Mixed(colors.Frame, colors.Paper, 0.5), kHair));
    painter.drawLine(band.Box.bottomLeft(), band.Box.bottomRight());
  }
  painter.setPen(QPen(colors.Frame, kHair));
  painter.drawRect(layout.Plot);
  DrawLabel(painter, layout.Title, Heavy(painter.font()), colors.Text);
  DrawLabel(painter, layout.Legend, Scaled(painter.font(), kSmallText), colors.Muted);
}

void PaintToday(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  if (layout.Today) {
    DrawDay(painter, *layout.Today, layout.Plot, colors.Today, colors.Paper);
    DrawLabel(painter, layout.TodayLabel, Scaled(painter.font(), kSmallText), colors.Today);
  }
}

// The line, dashed while the planet goes backwards, and the thin way from its end to its code.
void PaintLine(QPainter& painter, const PlanetLine& line, const QColor& color,
               const GraphColors& colors) {
  QPen pen(color, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  for (const LineRun& run : line.Runs) {
    pen.setDashPattern(run.Retrograde ? QList<qreal>{4, 2.6} : QList<qreal>{});
    pen.setStyle(run.Retrograde ? Qt::CustomDashLine : Qt::SolidLine);
    painter.setPen(pen);
    painter.drawPolyline(run.Points);
  }
  painter.setPen(QPen(Mixed(color, colors.Paper, 0.55), kHair));
  painter.drawLine(line.End, QPointF(line.Code.Box.left() - 2, line.Code.Box.center().y()));
  DrawLabel(painter, line.Code, Heavy(painter.font()), color);
}

void PaintStation(QPainter& painter, const PlacedMark& mark, const QColor& color,
                  const GraphColors& colors) {
  painter.setPen(QPen(colors.Paper, 1.2));
  painter.setBrush(color);
  painter.drawEllipse(mark.At, kStation, kStation);
  const QFont font = Heavy(painter.font(), kLetter);
  DrawLabel(painter, LabelAt(mark.Retrograde ? "R" : "D", font, mark.At), font, colors.Paper);
}

void PaintMarks(QPainter& painter, const PlanetLine& line, transit::MarkKind kind,
                const QColor& color, const GraphColors& colors) {
  for (const PlacedMark& mark : line.Marks) {
    if (mark.Mark.Kind != kind) {
      continue;
    }
    if (kind == transit::MarkKind::Station) {
      PaintStation(painter, mark, color, colors);
    } else {
      painter.setPen(QPen(color, 1.4));
      painter.setBrush(colors.Paper);
      painter.drawEllipse(mark.At, kDot, kDot);
    }
  }
}

}  // namespace

void PaintMonth(QPainter& painter, const QRectF& area, const MonthPicture& picture, Ground ground) {
  const GraphColors& colors = ColorsOn(ground);
  const MonthLayout layout = LayOutMonth(picture, painter.font(), area);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(area, colors.Paper);
  PaintBands(painter, layout, colors);
  PaintDays(painter, layout, colors);
  PaintFrame(painter, layout, colors);
  PaintToday(painter, layout, colors);
  for (std::size_t i = 0; i < layout.Lines.size(); ++i) {
    const QColor color = PlanetColor(picture.Series[i].Planet, ground);
    PaintLine(painter, layout.Lines[i], color, colors);
    PaintMarks(painter, layout.Lines[i], transit::MarkKind::SignChange, color, colors);
  }
  // Stations are told above all lines.
  for (std::size_t i = 0; i < layout.Lines.size(); ++i) {
    PaintMarks(painter, layout.Lines[i], transit::MarkKind::Station,
               PlanetColor(picture.Series[i].Planet, ground), colors);
  }
  painter.restore();
}

}  // namespace orvex::ui
