// Which row of a table is chosen: the current one, which is selected.
#include <algorithm>

#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"

namespace orvex::ui {

void TableView::SetTableAndChoose(core::Table table, const std::string& tag) {
  model_->SetTable(std::move(table));
  LayOutTable();
  ChooseTag(tag);
}

void TableView::SetLateRowsAndChoose(std::vector<core::Column> columns, LateRows rows,
                                     const std::string& tag) {
  model_->SetLateRows(std::move(columns), std::move(rows));
  LayOutTable();
  ChooseTag(tag);
}

void TableView::ChooseTag(const std::string& tag) {
  if (!SelectTag(tag)) {
    SelectFirst();
  }
  ReportChoice();
}

void TableView::SelectMarked() {
  QItemSelection marked;
  for (int row = 0; row < model_->rowCount(); ++row) {
    if (Table().Rows[model_->TableRow(row)].Selected) {
      marked.select(model_->index(row, 0), model_->index(row, model_->columnCount() - 1));
    }
  }
  if (!marked.isEmpty()) {
    selectionModel()->select(marked, QItemSelectionModel::ClearAndSelect);
  }
}

std::optional<int> TableView::ChosenRow() const {
  const QModelIndex current = currentIndex();
  if (current.isValid() && selectionModel()->isRowSelected(current.row(), {})) {
    return current.row();
  }
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? std::nullopt : std::optional(rows.constFirst().row());
}

std::string TableView::SelectedTag() const {
  const std::optional<int> row = ChosenRow();
  return row ? model_->TagOf(*row) : "";
}

void TableView::Choose(int row) {
  int column = 0;
  while (column + 1 < model_->columnCount() && isColumnHidden(column)) {
    ++column;
  }
  selectionModel()->setCurrentIndex(
      model_->index(row, column), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void TableView::ChooseNone() {
  selectionModel()->clear();
  ReportChoice();
}

bool TableView::SelectTag(const std::string& tag) {
  const std::optional<int> row = model_->RowOfTag(tag);
  if (!row) {
    return false;
  }
  Choose(*row);
  scrollTo(model_->index(*row, 0), PositionAtCenter);
  return true;
}

void TableView::SelectFirst() {
  if (model_->rowCount() > 0) {
    Choose(0);
  }
}

// The focus alone chooses nothing: the first row would be current without being selected.
void TableView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  JoinCurrentRow();
}

void TableView::selectionChanged(const QItemSelection& now, const QItemSelection& before) {
  QTableView::selectionChanged(now, before);
  JoinCurrentRow();
  ReportChoice();
}

// Where one row is chosen at a time, Ctrl does not take the choice away.
QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const {
  if (selectionMode() != SingleSelection || !ChoosesRows()) {
    return QTableView::selectionCommand(index, event);
  }
  return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                         : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
}

void TableView::JoinCurrentRow() {
  if (!ChoosesRows()) {
    return;
  }
  const std::optional<int> row = ChosenRow();
  if (!row && currentIndex().isValid()) {
    selectionModel()->clearCurrentIndex();
  } else if (row && *row != currentIndex().row()) {
    selectionModel()->setCurrentIndex(model_->index(*row, std::max(0, currentIndex().column())),
                                      QItemSelectionModel::NoUpdate);
  }
}

void TableView::ReportChoice() {
  const QString tag = Shown(SelectedTag());
  if (tag != reported_) {
    reported_ = tag;
    emit TagChosen(tag);
  }
}

}  // namespace orvex::ui
