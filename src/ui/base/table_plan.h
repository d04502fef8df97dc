// Shows a table as its page wants it first read: the columns of a plan in their order, as many as
// the room holds, all rows as high as they can be without a bar. F4 shows the whole table and turns
// back.
#pragma once

#include <QObject>

#include "ui/base/cell_delegate.h"
#include "ui/base/room_plan.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"

namespace orvex::ui {

struct RowBounds {
  int Least = height::kLeastRow;
  int Most = height::kMostRow;
  bool ShareRoom = true;  // the rows share the height of the view
};

class TablePlan final : public QObject {
  Q_OBJECT

 public:
  // Belongs to the view. The plan's captions are those of the tables that the view will show.
  TablePlan(TableView& view, std::vector<ColumnPlan> columns, RowBounds rows = {});

  // To be called when the view has been given another table.
  void Fit();

  // Whether the columns that always stay have room.
  bool HasRoom() const;

  // Another plan, for a table of other columns that is shown next.
  void SetColumns(std::vector<ColumnPlan> columns) { columns_ = std::move(columns); }

  bool ShowsAll() const { return all_; }
  void ShowAll(bool all);

  CellDelegate& Cells() { return *cells_; }

  // Rings the chips of a planet; "" takes the ring off.
  void SetChosen(const QString& code);

 signals:
  // The whole table is shown, or the plan again.
  void AllShown(bool all);
  // A chip was clicked, or a row that is about a planet.
  void CodeClicked(const QString& code);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<int> Places() const;
  int Least(const ColumnPlan& column, int place) const;
  int WidestCell(int column) const;
  void Measure();
  void TakeKinds();
  void PlaceColumns();
  void ShareWidth();
  void Spread(const std::vector<ColumnRoom>& rooms, const std::vector<bool>& shown, int over);
  void ShareHeight();
  void Click(const QPoint& at);

  // What a column of the table needs, in the order of the plan.
  struct Need {
    int Column = 0;
    int Least = 0;
    int Rank = 0;
    bool Grows = true;  // takes its part of what is left over
  };

  TableView& view_;
  std::vector<ColumnPlan> columns_;
  std::vector<Need> needs_;
  RowBounds rows_;
  std::vector<int> places_;  // of the plan's columns in the table; -1 where it has none
  CellDelegate* cells_;
  bool all_ = false;
  bool secondClick_ = false;  // the release that follows ends a double click
};

}  // namespace orvex::ui
