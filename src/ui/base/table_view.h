// A display table in a window: sized to its content, ordered by a click on a header, searched by
// typing, copied with Ctrl+C. In a table of rows the current row is a selected one: the chosen row.
// It stays chosen while the table is ordered and narrowed, for as long as it is shown.
#pragma once

#include <QTableView>
#include <functional>

#include "ui/base/table_model.h"

class QAction;
class QMenu;

namespace orvex::ui {

class LayoutMemory;

class TableView : public QTableView {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  // Shows a table and selects the rows that it marks as selected. Columns are as wide as what they
  // show; without rows as wide as the table says.
  void SetTable(core::Table table);

  // Shows a table and chooses the row of a tag, the first where none has it; told as one change.
  void SetTableAndChoose(core::Table table, const std::string& tag = "");

  // The same of rows whose cells are read when they come into sight.
  void SetLateRowsAndChoose(std::vector<core::Column> columns, LateRows rows,
                            const std::string& tag = "");

  // Without rows that are read late.
  const core::Table& Table() const { return model_->Table(); }
  TableModel& Model() { return *model_; }
  const TableModel& Model() const { return *model_; }

  // The text that stands in the middle of a table without rows and says what to do next.
  void SetEmptyText(const QString& text);
  const QString& EmptyText() const { return emptyText_; }

  // Narrows the rows as SetFilter of the model does.
  void SetFilter(const QString& text) { model_->SetFilter(text); }

  // The chosen row, as it is shown; nothing without one.
  std::optional<int> ChosenRow() const;

  // The tag of the chosen row, "" without one.
  std::string SelectedTag() const;

  // Selects the row of a tag and brings it into sight. False where no row has it.
  bool SelectTag(const std::string& tag);
  void SelectFirst();
  // Chooses no row.
  void ChooseNone();

  // The rows as they are shown, in their order.
  core::Table ShownTable() const;

  // The rows of the selection, or all rows without one, with the captions above: cells between
  // tabs.
  QString AsTabbedText() const;
  void CopyToClipboard() const;

  // Offers "Export to spreadsheet" in the context menu.
  void SetExport(std::function<void(const core::Table&)> exportTable);

  // Entries of the window that stand above those of every table.
  void AddMenuAction(QAction* action);

  // The table takes the height of its rows and shows no bar of its own.
  void FitHeightToRows();

  // The first column stays in sight when the others are moved sideways.
  void FreezeFirstColumn();

  // Columns keep the widths that the user gives them, from one start to the next, under the table's
  // object name.
  void RememberWidths(LayoutMemory& memory);

  // Pixels beside the text of a column; kGrid where nothing is said.
  void SetColumnRoom(int room) { columnRoom_ = room; }

  // Gives every column its width in pixels, 0 hides it. The widths are the page's, not the user's.
  void SetWidths(const std::vector<int>& widths);

  // All columns of the table again, as wide as what they show.
  void ShowAllColumns();

  // The width that the user gave to a column; nothing where none was given.
  std::optional<int> WidthByHand(int column) const { return KeptWidth(column); }

  // A column takes the room that is left.
  void SetStretchColumn(int column);

  QSize sizeHint() const override;

 signals:
  // Another row is chosen, "" for none; told once, when current row and selection stand.
  void TagChosen(const QString& tag);
  // A double click or the Enter key on a row.
  void TagActivated(const QString& tag);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  void LayOutTable();
  void ChooseTag(const std::string& tag);
  void SizeToContent();
  void HideColumns();
  void KeepWidth(int column, int width);
  int UsualWidth(int column) const;
  std::optional<int> KeptWidth(int column) const;
  QString CaptionOf(int column) const;
  bool ChoosesRows() const { return selectionBehavior() == SelectRows; }
  void SelectMarked();
  void Choose(int row);
  void JoinCurrentRow();
  void ReportChoice();
  void FillMenu(QMenu& menu);

  TableModel* model_;
  QString emptyText_;
  QString reported_;  // the tag that was told last
  std::function<void(const core::Table&)> export_;
  std::vector<QAction*> actions_;
  LayoutMemory* memory_ = nullptr;
  bool sizing_ = false;  // widths that change now are not the user's doing
  int columnRoom_;
  bool fitsHeight_ = false;
  int stretchColumn_ = -1;
};

}  // namespace orvex::ui
