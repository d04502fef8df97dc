#include "ui/painting/month_graph.h"

namespace orvex::ui {

namespace {

constexpr double kLine = 1.8;
constexpr double kHair = 0.8;
constexpr double kDot = 3.4;      // radius of a change of sign
constexpr double kStation = 8.5;  // radius of a station
constexpr double kLetter = 0.78;  // of the text, inside a station

void PaintBands(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  for (std::size_t i = 0; i < layout.Bands.size(); ++i) {
    const SignBand& band = layout.Bands.at(i);
    painter.fillRect(band.Box, i % 2 == 0 ? colors.Band : colors.Paper);
    painter.setPen(colors.Text);
    DrawLabel(painter, band.Sign);
  }
}

void PaintDays(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  constexpr double kTick = 4;
  const QFont font = painter.font();
  painter.setFont(Scaled(font, 0.9));
  for (const DayTick& day : layout.Days) {
    painter.setPen(QPen(colors.Grid, kHair));
    painter.drawLine(QPointF(day.X, layout.Plot.top()), QPointF(day.X, layout.Plot.bottom()));
    painter.setPen(QPen(colors.Frame, kHair));
    painter.drawLine(QPointF(day.X, layout.Plot.bottom()),
                     QPointF(day.X, layout.Plot.bottom() + kTick));
    if (!day.Label.Text.isEmpty()) {
      painter.setPen(colors.Muted);
      DrawLabel(painter, day.Label);
    }
  }
  painter.setFont(font);
}

void PaintFrame(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  painter.setBrush(Qt::NoBrush);
  for (const SignBand& band : layout.Bands) {
    painter.setPen(QPen(Mixed(colors.Frame, colors.Paper, 0.5), kHair));
    painter.drawLine(band.Box.bottomLeft(), band.Box.bottomRight());
  }
  painter.setPen(QPen(colors.Frame, kHair));
  painter.drawRect(layout.Plot);
  painter.setPen(colors.Text);
  const QFont font = painter.font();
  painter.setFont(Heavy(font));
  DrawLabel(painter, layout.Title);
  painter.setPen(colors.Muted);
  painter.setFont(Scaled(font, 0.9));
  DrawLabel(painter, layout.Legend);
}

void PaintToday(QPainter& painter, const MonthLayout& layout, const GraphColors& colors) {
  if (!layout.Today) {
    return;
  }
  DrawDay(painter, *layout.Today, layout.Plot, colors.Today, colors.Paper);
  painter.setFont(Scaled(painter.font(), 0.9));
  DrawLabel(painter, layout.TodayLabel);
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
  painter.setPen(color);
  painter.setFont(Heavy(painter.font()));
  DrawLabel(painter, line.Code);
}

void PaintMark(QPainter& painter, const PlacedMark& mark, const QColor& color,
               const GraphColors& colors) {
  painter.setPen(QPen(color, 1.4));
  painter.setBrush(colors.Paper);
  if (mark.Mark.Kind == transit::MarkKind::SignChange) {
    painter.drawEllipse(mark.At, kDot, kDot);
    return;
  }
  painter.setPen(QPen(colors.Paper, 1.2));
  painter.setBrush(color);
  painter.drawEllipse(mark.At, kStation, kStation);
  painter.setPen(colors.Paper);
  QFont font = Heavy(painter.font(), kLetter);
  painter.setFont(font);
  painter.drawText(
      QRectF(mark.At.x() - kStation, mark.At.y() - kStation, 2 * kStation, 2 * kStation),
      Qt::AlignCenter | Qt::TextDontClip, mark.Retrograde ? "R" : "D");
}

}  // namespace

void PaintMonth(QPainter& painter, const QRectF& area, const MonthPicture& picture, Ground ground) {
  const GraphColors& colors = ColorsOn(ground);
  const QFont font = painter.font();
  const MonthLayout layout = LayOutMonth(picture, font, area);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(area, colors.Paper);
  PaintBands(painter, layout, colors);
  PaintDays(painter, layout, colors);
  PaintFrame(painter, layout, colors);
  painter.setFont(font);
  PaintToday(painter, layout, colors);
  for (const transit::MarkKind kind : {transit::MarkKind::SignChange, transit::MarkKind::Station}) {
    for (std::size_t i = 0; i < layout.Lines.size(); ++i) {
      const QColor color = PlanetColor(picture.Series[i].Planet, ground);
      painter.setFont(font);
      if (kind == transit::MarkKind::SignChange) {
        PaintLine(painter, layout.Lines[i], color, colors);
      }
      for (const PlacedMark& mark : layout.Lines[i].Marks) {
        if (mark.Mark.Kind == kind) {
          painter.setFont(font);
          PaintMark(painter, mark, color, colors);
        }
      }
    }
  }
  painter.restore();
}

}  // namespace orvex::ui
