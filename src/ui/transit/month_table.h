// The grid of a month as a table: every day in sight where the room allows, all planets side by
// side.
#pragma once

#include "transit/month_cells.h"
#include "transit/monthly_grid.h"
#include "ui/base/table_view.h"
#include "ui/painting/day_graph.h"

namespace orvex::ui {

class MonthCellDelegate;

class MonthTable final : public TableView {
  Q_OBJECT

 public:
  MonthTable();

  // Shows the rows of a month and what their cells tell; `today` is a row, -1 for none.
  void ShowMonth(core::Table grid, std::vector<transit::MonthCellRow> cells, int today);

  // The same month with other colours of its cells.
  void ShowMarked(core::Table grid);

  // The width that shows all planets, and the height that shows so many days, without a bar.
  int LeastWidth() const;
  static int LeastHeight(int days);

  // Where its rows stand in its own pixels, for a graph beside it.
  DayRows Rows() const;

 signals:
  // Rows stand in other places, or another one is chosen.
  void RowsMoved();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void changeEvent(QEvent* event) override;

 private:
  void Fit();

  MonthCellDelegate* cells_;
};

}  // namespace orvex::ui
