#include "ui/painting/dasha_timeline.h"

namespace orvex::ui {

namespace {

constexpr double kHair = 0.8;
constexpr double kSmall = 0.9;

struct Brushes {
  const GraphColors& Colors;
  Ground On;

  QColor Fill(const std::string& planet, bool chosen) const {
    const double part = On == Ground::Dark ? (chosen ? 0.50 : 0.26) : (chosen ? 0.42 : 0.20);
    return Mixed(PlanetColor(planet, On), Colors.Paper, part);
  }
};

void PaintOpening(QPainter& painter, const TimelineRow& row, const QColor& fill) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawPolygon(row.Opening);
}

void PaintBars(QPainter& painter, const TimelineRow& row, const TimelineLevel& level,
               const Brushes& brushes, bool cursor) {
  painter.setPen(QPen(brushes.Colors.Paper, 1));
  for (std::size_t i = 0; i < row.Bars.size(); ++i) {
    painter.setBrush(brushes.Fill(level.Periods[i].Planet, level.Chosen == i));
    painter.drawRect(row.Bars[i].Box);
  }
  if (!level.Chosen || row.Bars.empty()) {
    return;
  }
  const double width = cursor ? 3 : 1.4;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(PlanetColor(level.Periods.at(*level.Chosen).Planet, brushes.On), width,
                      Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(row.Bars.at(*level.Chosen).Box);
}

void PaintNames(QPainter& painter, const TimelineRow& row, const GraphColors& colors) {
  painter.setPen(colors.Text);
  for (const TimelineBar& bar : row.Bars) {
    painter.drawText(bar.Box, Qt::AlignCenter | Qt::TextDontClip, bar.Name);
  }
}

void PaintDates(QPainter& painter, const TimelineRow& row, const GraphColors& colors) {
  constexpr double kTick = 4;
  painter.setPen(QPen(colors.Frame, kHair));
  for (const TimelineBar& bar : row.Bars) {
    painter.drawLine(bar.Box.bottomRight(), bar.Box.bottomRight() + QPointF(0, kTick));
  }
  painter.setPen(colors.Muted);
  for (const GraphLabel& date : row.Dates) {
    DrawLabel(painter, date);
  }
}

void PaintDay(QPainter& painter, const TimelineRow& row, std::optional<double> x,
              const QColor& color, const QColor& paper) {
  constexpr double kBeyond = 4;
  if (x) {
    DrawDay(painter, *x, row.Axis.adjusted(0, -kBeyond, 0, kBeyond), color, paper);
  }
}

void PaintRow(QPainter& painter, const TimelineRow& row, const TimelineLevel& level,
              const Brushes& brushes, bool cursor) {
  const QFont font = painter.font();
  painter.setPen(brushes.Colors.Text);
  painter.setFont(Heavy(font));
  DrawLabel(painter, row.Heading);
  painter.setFont(font);
  PaintBars(painter, row, level, brushes, cursor);
  painter.setFont(Scaled(font, kSmall));
  PaintDates(painter, row, brushes.Colors);
  PaintDay(painter, row, row.Birth, brushes.Colors.Text, brushes.Colors.Paper);
  PaintDay(painter, row, row.Today, brushes.Colors.Today, brushes.Colors.Paper);
  for (const GraphLabel& flag : row.Flags) {
    painter.setPen(flag.Text.startsWith("Today") ? brushes.Colors.Today : brushes.Colors.Text);
    DrawLabel(painter, flag);
  }
  // The names stand before the lines.
  painter.setFont(Heavy(font));
  PaintNames(painter, row, brushes.Colors);
  painter.setFont(font);
}

}  // namespace

void PaintTimeline(QPainter& painter, const QRectF& area, const TimelinePicture& picture,
                   Ground ground, std::optional<std::size_t> cursor) {
  const Brushes brushes{ColorsOn(ground), ground};
  const QFont font = painter.font();
  const TimelineLayout layout = LayOutTimeline(picture, font, area);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(area, brushes.Colors.Paper);
  painter.setPen(brushes.Colors.Text);
  painter.setFont(Heavy(font, kTitleText));
  DrawLabel(painter, layout.Title);
  painter.setFont(font);
  for (const TimelineRow& row : layout.Rows) {
    PaintOpening(painter, row, brushes.Colors.Band);
  }
  for (std::size_t level = 0; level < kTimelineLevels; ++level) {
    PaintRow(painter, layout.Rows.at(level), picture.Levels.at(level), brushes, cursor == level);
  }
  if (layout.Rows.front().Bars.empty()) {
    painter.setPen(brushes.Colors.Muted);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                     "This horoscope has no periods: the Moon's star is not known.");
  }
  painter.restore();
}

}  // namespace orvex::ui
