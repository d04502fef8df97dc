// The month's longitudes of the planets as lines over the signs.
#pragma once

#include "ui/graphs/graph_view.h"
#include "ui/painting/month_graph.h"

namespace orvex::ui {

class MonthGraphView final : public GraphView {
  Q_OBJECT

 public:
  explicit MonthGraphView(Workplace& place);

  // Shows a grid that stands already, or makes the one of a month (1 to 12) of a place.
  // std::out_of_range for a month that the grid does not reach.
  void ShowGrid(const transit::MonthGrid& grid);
  void ShowMonth(const transit::GridView& view, int month, int year);

  const MonthPicture& Picture() const { return picture_; }

 signals:
  // A planet's line was clicked: the cell of the grid that it stands for.
  void CellChosen(std::size_t row, std::size_t column);

 protected:
  std::string Title() const override { return picture_.Title; }
  void PaintGraph(QPainter& painter, const QRectF& area, Ground ground) const override;
  QString HintAt(const QPointF& point) const override;

  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::optional<transit::CellPlace> CellUnder(const QPointF& point) const;

  MonthPicture picture_;
};

}  // namespace orvex::ui
