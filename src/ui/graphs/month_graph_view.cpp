#include "ui/graphs/month_graph_view.h"

#include "ui/base/qt_text.h"

namespace orvex::ui {

MonthGraphView::MonthGraphView(Workplace& place) : GraphView(place) {
  setObjectName("monthGraph");
  setAccessibleName(tr("Month graph"));
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

}  // namespace orvex::ui
