// The month graph beside the grid, its days in the rows of the grid.
#pragma once

#include <QWidget>

#include "ui/base/shown_page.h"
#include "ui/painting/day_graph.h"

namespace orvex::ui {

class DayGraphView final : public QWidget, public PrintsItself {
  Q_OBJECT

 public:
  DayGraphView();

  // Shows a month as the grid has it.
  void ShowMonth(MonthPicture picture);
  // Where the rows of the grid stand beside it now, and which one is chosen; -1 for none.
  void PlaceRows(const DayRows& rows);
  void ChooseRow(int row);

  const MonthPicture& Picture() const { return picture_; }
  const DayGraphLayout& Layout() const { return layout_; }

  // On paper the month stands as a graph of its own.
  std::vector<PageBlock> PrintedBlocks() const override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A planet's line was clicked: the cell of the grid that it stands for.
  void CellChosen(std::size_t row, std::size_t column);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Place();
  bool IsBody(const QPointF& point) const { return point.y() >= rows_.Head; }
  std::optional<transit::CellPlace> CellUnder(const QPointF& point) const;
  void PaintGround(QPainter& painter) const;
  void PaintHead(QPainter& painter) const;
  void PaintLine(QPainter& painter, std::size_t which) const;
  void PaintStations(QPainter& painter, const PlanetLine& line) const;

  MonthPicture picture_;
  DayRows rows_;
  DayGraphLayout layout_;
  int chosen_ = -1;
};

}  // namespace orvex::ui
