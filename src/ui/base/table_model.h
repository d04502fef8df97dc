// One Qt model for every display table. It shows the cells as they are, and orders and narrows the
// rows itself: a proxy would be slow on the 50,000 rows of the city list.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/table.h"

namespace orvex::ui {

// Rows whose cells are read when they are looked at. None of them is marked.
struct LateRows {
  std::vector<std::string> Tags;  // a row each
  // The cells of rows, counted from 0 in the order of the tags; in the order asked for.
  std::function<std::vector<core::Row>(const std::vector<std::size_t>&)> Read;
};

class TableModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role { SortRole = Qt::UserRole, TagRole };

  explicit TableModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  // Shows another table; the order chosen by the user stays, the filter is taken off.
  void SetTable(core::Table table);
  // Shows rows that are read late.
  void SetLateRows(std::vector<core::Column> columns, LateRows rows);

  // Without the rows that are read late.
  const core::Table& Table() const { return table_; }

  // A shown row; it stands until another is asked for.
  const core::Row& ShownRowAt(int shownRow) const;

  // Shows the rows only in which a cell that is not hidden holds the text, letters compared without
  // case and accents; "" shows all.
  void SetFilter(const QString& text);

  // The row of the table that a shown row stands for, and back; nothing where it is filtered out.
  std::size_t TableRow(int shownRow) const { return shown_.at(static_cast<std::size_t>(shownRow)); }
  std::optional<int> ShownRow(std::size_t tableRow) const;

  // The first shown row whose tag, or the tag of whose first cell, is this; nothing where none is.
  std::optional<int> RowOfTag(const std::string& tag) const;

  // The tag of a shown row, or of its first cell where the row has none.
  const std::string& TagOf(int shownRow) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Orders by the sort keys of a column, numbers by their value; column -1 is the table's own
  // order.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

 private:
  const core::Cell& CellAt(const QModelIndex& index) const;
  // Orders and narrows anew; an index of a row that stays goes with it, any other ends.
  void Rearrange();
  void FillShown();
  void SortShown();
  void FillKeys();
  void Reset(core::Table table, LateRows late);
  std::size_t TableRowCount() const { return late_.Read ? late_.Tags.size() : table_.Rows.size(); }
  void ReadAround(int shownRow) const;
  // Calls `visit` with the number of each row of the table and the row.
  template <typename Visit>
  void ForEachRow(Visit visit) const;

  core::Table table_;
  LateRows late_;  // in the place of the table's rows where Read is set
  mutable std::unordered_map<std::size_t, core::Row> read_;  // of the late rows, those in sight
  std::vector<std::size_t> shown_;  // rows of the table in the order in which they are shown
  std::vector<QString> keys_;       // what the filter compares, a table row each; made when needed
  QString filter_;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

// A text as a tool tip shows it letter for letter: a tip that looks like markup is read as markup.
QString PlainTip(const QString& text);

// The text in lower case and without accents, as filters compare it.
QString FoldedText(const QString& text);

}  // namespace orvex::ui
