#include "ui/graphs/month_graph_view.h"

#include <QMouseEvent>

#include "ui/base/qt_text.h"

namespace orvex::ui {

MonthGraphView::MonthGraphView(Workplace& place) : GraphView(place) {
  setObjectName("monthGraph");
  setAccessibleName(tr("Month graph"));
  setMouseTracking(true);
}

void MonthGraphView::ShowGrid(const transit::MonthGrid& grid) {
  picture_ = PictureOfMonth(grid, Place().Session.Time.Today());
  setAccessibleDescription(Shown(picture_.Title));
  update();
}

void MonthGraphView::ShowMonth(const transit::GridView& view, int month, int year) {
  ShowGrid(transit::CreateGrid(Place().Session, view, month, year));
}

void MonthGraphView::PaintGraph(QPainter& painter, const QRectF& area, Ground ground) const {
  PaintMonth(painter, area, picture_, ground);
}

QString MonthGraphView::HintAt(const QPointF& point) const {
  return MonthHint(picture_, LayOutMonth(picture_, font(), rect()), point);
}

std::optional<transit::CellPlace> MonthGraphView::CellUnder(const QPointF& point) const {
  return CellAt(picture_, LayOutMonth(picture_, font(), rect()), point);
}

void MonthGraphView::mouseMoveEvent(QMouseEvent* event) {
  setCursor(CellUnder(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void MonthGraphView::mouseReleaseEvent(QMouseEvent* event) {
  const std::optional<transit::CellPlace> cell = CellUnder(event->position());
  if (cell && event->button() == Qt::LeftButton) {
    emit CellChosen(cell->Row, cell->Column);
  }
}

}  // namespace orvex::ui
