// The first column of a wide table, which stays in sight while the others move sideways.
#pragma once

#include <QTableView>

namespace orvex::ui {

class FrozenColumn final : public QTableView {
  Q_OBJECT

 public:
  // Lies over the first column of `table`, with the same rows, selection and order; what is done in
  // it is done in the table, which owns it.
  explicit FrozenColumn(QTableView& table);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void FollowTable();
  void SortByFirstColumn();
  void Place();

  QTableView& table_;
};

}  // namespace orvex::ui
