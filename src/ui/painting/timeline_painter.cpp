#include "ui/painting/dasha_timeline.h"

namespace orvex::ui {

namespace {

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

void PaintDates(QPainter& painter, const TimelineRow& row, const GraphColors& colors) {
  constexpr double kTick = 4;
  painter.setPen(QPen(colors.Frame, kHair));
  for (const TimelineBar& bar : row.Bars) {
    painter.drawLine(bar.Box.bottomRight(), bar.Box.bottomRight() + QPointF(0, kTick));
  }
  for (const GraphLabel& date : row.Dates) {
    DrawLabel(painter, date, Scaled(painter.font(), kSmallText), colors.Muted);
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
  const GraphColors& colors = brushes.Colors;
  const QFont heavy = Heavy(painter.font());
  DrawLabel(painter, row.Heading, heavy, colors.Text);
  PaintBars(painter, row, level, brushes, cursor);
  PaintDates(painter, row, colors);
  PaintDay(painter, row, row.Birth, colors.Text, colors.Paper);
  PaintDay(painter, row, row.Today, colors.Today, colors.Paper);
  for (const GraphLabel& flag : row.Flags) {
    DrawLabel(painter, flag, Scaled(painter.font(), kSmallText),
              flag.Text.startsWith("Today") ? colors.Today : colors.Text);
  }
  // The names stand before the lines.
  for (const TimelineBar& bar : row.Bars) {
    DrawLabel(painter, {bar.Name, bar.Box}, heavy, colors.Text);
  }
}

}  // namespace

void PaintTimeline(QPainter& painter, const QRectF& area, const TimelinePicture& picture,
                   Ground ground, std::optional<std::size_t> cursor) {
  const Brushes brushes{ColorsOn(ground), ground};
  const TimelineLayout layout = LayOutTimeline(picture, painter.font(), area);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(area, brushes.Colors.Paper);
  DrawLabel(painter, layout.Title, Heavy(painter.font(), kTitleText), brushes.Colors.Text);
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
