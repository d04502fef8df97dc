#include "ui/base/shown_table.h"

#include <QHeaderView>

#include "ui/base/cell_delegate.h"
#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/painting/page_fonts.h"

namespace orvex::ui {

namespace {

// Degrees are told as they are shown, in their sign.
QString CellTextOf(const TableView& view, const QModelIndex& index) {
  const QString text = index.data().toString().trimmed();
  const auto* cells = qobject_cast<const CellDelegate*>(view.itemDelegate());
  if (cells != nullptr && cells->KindOf(index.column()) == CellKind::Degree) {
    if (const std::optional<DegreeText> degree = ShownDegree(text)) {
      return degree->Figures + ' ' + degree->Sign;
    }
  }
  return text;
}

PageCell CellOf(const TableView& view, const core::Cell& cell, const QModelIndex& index) {
  const auto color = [](const std::string& digits) {
    return digits.empty() ? QColor() : QColor('#' + Shown(digits));
  };
  return {PlainText(CellTextOf(view, index)), color(cell.Foreground), color(cell.Background),
          cell.Bold};
}

}  // namespace

PageTable ShownTableOf(const TableView& view) {
  const QHeaderView& header = *view.horizontalHeader();
  std::vector<int> columns;
  for (int place = 0; place < header.count(); ++place) {
    if (const int column = header.logicalIndex(place); !view.isColumnHidden(column)) {
      columns.push_back(column);
    }
  }
  PageTable table;
  table.WhenEmpty = PlainText(view.EmptyText());
  for (const int column : columns) {
    if (!header.isHidden()) {
      table.Captions.push_back(
          PlainText(Shown(view.Table().Columns[static_cast<std::size_t>(column)].Caption)));
    }
  }
  for (int row = 0; row < view.Model().rowCount(); ++row) {
    std::vector<PageCell> cells;
    for (const int column : columns) {
      const core::Cell& cell =
          view.Model().ShownRowAt(row).Cells.at(static_cast<std::size_t>(column));
      cells.push_back(CellOf(view, cell, view.Model().index(row, column)));
    }
    table.Rows.push_back(std::move(cells));
  }
  return table;
}

}  // namespace orvex::ui
