#include "ui/graphs/day_graph_view.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "core/date_text.h"
#include "ui/base/planet_chip.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/month_graph.h"

namespace orvex::ui {

namespace {

constexpr int kLeastGraphWidth = 270;
constexpr int kUsualGraphWidth = 430;

Ground GroundOfWindow() { return Theme::Mode() == ThemeMode::Dark ? Ground::Dark : Ground::Light; }

}  // namespace

DayGraphView::DayGraphView() {
  setObjectName("dayGraph");
  setAccessibleName(tr("Graph of the month, its days in the rows of the grid"));
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize DayGraphView::sizeHint() const {
  return {Scaled(kUsualGraphWidth), Scaled(kLeastGraphWidth)};
}
QSize DayGraphView::minimumSizeHint() const { return {Scaled(kLeastGraphWidth), 1}; }

void DayGraphView::ShowMonth(MonthPicture picture) {
  picture_ = std::move(picture);
  setAccessibleDescription(Shown(picture_.Title));
  Place();
}

void DayGraphView::PlaceRows(const DayRows& rows) {
  rows_ = rows;
  Place();
}

void DayGraphView::ChooseRow(int row) {
  chosen_ = row;
  update();
}

void DayGraphView::Place() {
  layout_ = LayOutDayGraph(picture_, rows_, width(), Theme::Text(type::kHead), ChipFont());
  update();
}

void DayGraphView::resizeEvent(QResizeEvent* /*event*/) { Place(); }

void DayGraphView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    Place();
  }
}

std::vector<PageBlock> DayGraphView::PrintedBlocks() const {
  const MonthPicture picture = picture_;
  return {
      {PageFigures{{GraphFigure([picture](QPainter& painter, const QRectF& area, Ground ground) {
        PaintMonth(painter, area, picture, ground);
      })}}}};
}

void DayGraphView::PaintGround(QPainter& painter) const {
  constexpr int kWeek = 7;
  const Tokens& t = Theme::Now();
  const QRectF& plot = layout_.Scale.Plot;
  for (int sign = 1; sign <= static_cast<int>(layout_.Signs.size()); ++sign) {
    const QRectF band = layout_.Scale.SignBox(sign);
    painter.fillRect(band, sign % 2 == 1 ? t.Sunk : t.Sheet);
    painter.fillRect(QRectF(band.left(), band.top(), line::kHair, band.height()), t.Rule);
  }
  painter.fillRect(QRectF(plot.right(), plot.top(), line::kHair, plot.height()), t.Rule);
  for (std::size_t row = 0; row < picture_.Days.size(); row += kWeek) {
    const double y = DayBox(layout_, row).center().y();
    painter.fillRect(QRectF(plot.left(), y, plot.width(), line::kHair), t.Rule);
  }
  const auto mark = [&](std::size_t row, const QColor& color) {
    const QRectF day = DayBox(layout_, row);
    painter.fillRect(QRectF(0, day.top(), width(), day.height() - line::kHair), color);
  };
  if (picture_.Today) {
    mark(*picture_.Today, t.GoodGround);
  }
  if (chosen_ >= 0 && chosen_ < static_cast<int>(picture_.Days.size())) {
    mark(static_cast<std::size_t>(chosen_), t.Sel);
  }
}

void DayGraphView::PaintHead(QPainter& painter) const {
  const Tokens& t = Theme::Now();
  const double head = rows_.Head;
  painter.fillRect(QRectF(0, 0, width(), head), t.Sheet);
  painter.fillRect(QRectF(0, 0, width(), line::kHead), t.HeadRule);
  painter.fillRect(QRectF(0, head - line::kHair, width(), line::kHair), t.Rule2);
  for (const GraphLabel& sign : layout_.Signs) {
    DrawLabel(painter, sign, Theme::Text(type::kHead), t.Ink2);
  }
}

void DayGraphView::PaintLine(QPainter& painter, std::size_t which) const {
  constexpr double kLine = 1.8;
  constexpr double kDot = 3;
  const PlanetLine& line = layout_.Lines[which];
  const QColor color = PlanetColor(picture_.Series[which].Planet, GroundOfWindow());
  QPen pen(color, kLine, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
  for (const LineRun& run : line.Runs) {
    pen.setStyle(run.Retrograde ? Qt::CustomDashLine : Qt::SolidLine);
    if (run.Retrograde) {
      pen.setDashPattern({2, 2});
    }
    painter.setPen(pen);
    painter.drawPolyline(run.Points);
  }
  painter.setPen(QPen(color, 1.4));
  painter.setBrush(Theme::Now().Sheet);
  for (const PlacedMark& mark : line.Marks) {
    if (mark.Mark.Kind == transit::MarkKind::SignChange) {
      painter.drawEllipse(mark.At, kDot, kDot);
    }
  }
  DrawLabel(painter, line.Code, ChipFont(), ChipOf(Theme::Now(), line.Code.Text).Letters);
}

void DayGraphView::PaintStations(QPainter& painter, const PlanetLine& line) const {
  const Tokens& t = Theme::Now();
  for (const PlacedMark& mark : line.Marks) {
    if (mark.Mark.Kind == transit::MarkKind::Station) {
      const GraphLabel letter = LabelAt(mark.Retrograde ? "R" : "D", ChipFont(), mark.At);
      QRectF frame(0, 0, letter.Box.height() - 3, letter.Box.height() - 3);
      frame.moveCenter(mark.At);
      painter.setPen(QPen(t.Now, 1.2));
      painter.setBrush(t.Sheet);
      painter.drawRoundedRect(frame, 2, 2);
      DrawLabel(painter, letter, ChipFont(), t.Now);
    }
  }
}

void DayGraphView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), Theme::Now().Sheet);
  painter.setClipRect(QRectF(0, rows_.Head, width(), height() - rows_.Head));
  PaintGround(painter);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  for (std::size_t i = 0; i < layout_.Lines.size(); ++i) {
    PaintLine(painter, i);
  }
  // Stations are told above all lines.
  for (const PlanetLine& line : layout_.Lines) {
    PaintStations(painter, line);
  }
  painter.setClipping(false);
  PaintHead(painter);
}

std::optional<transit::CellPlace> DayGraphView::CellUnder(const QPointF& point) const {
  return IsBody(point) ? CellNear(picture_, layout_.Lines, layout_.Scale, point) : std::nullopt;
}

void DayGraphView::mouseMoveEvent(QMouseEvent* event) {
  setCursor(CellUnder(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void DayGraphView::mouseReleaseEvent(QMouseEvent* event) {
  const std::optional<transit::CellPlace> cell = CellUnder(event->position());
  if (cell && event->button() == Qt::LeftButton) {
    emit CellChosen(cell->Row, cell->Column);
  }
}

bool DayGraphView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const auto& help = dynamic_cast<QHelpEvent&>(*event);
  const QString hint =
      IsBody(help.pos()) ? HintNear(picture_, layout_.Lines, layout_.Scale, help.pos()) : QString();
  if (hint.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help.globalPos(), hint, this);
  }
  return true;
}

}  // namespace orvex::ui
