#include "ui/transit/month_table.h"

#include <QEvent>
#include <QScrollBar>

#include "ui/base/room_plan.h"
#include "ui/base/scaled.h"
#include "ui/transit/month_cell_delegate.h"
#include "ui/transit/planet_header.h"

namespace orvex::ui {

namespace {

constexpr int kMostRow = 24;

int LeastRow() {
  return std::max(Scaled(height::kGridRow), QFontMetrics(Theme::Text(type::kText)).height());
}

int HeadHeight() { return Scaled(height::kHead); }

}  // namespace

MonthTable::MonthTable() : cells_(new MonthCellDelegate(this)) {
  setObjectName("grid");
  setFrameShape(QFrame::NoFrame);
  setSortingEnabled(false);  // ahead of another head, by which the rows would be sorted
  setHorizontalHeader(new PlanetHeader(this));
  horizontalHeader()->setFixedHeight(HeadHeight());
  horizontalHeader()->setMinimumSectionSize(1);
  setSelectionBehavior(SelectItems);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerPixel);
  setItemDelegate(cells_);
  verticalHeader()->setMinimumSectionSize(1);
  FreezeFirstColumn();
}

void MonthTable::ShowMonth(core::Table grid, std::vector<transit::MonthCellRow> cells, int today) {
  cells_->SetCells(std::move(cells), today);
  SetTable(std::move(grid));
  Fit();
}

void MonthTable::ShowMarked(core::Table grid) {
  SetTable(std::move(grid));
  Fit();
}

int MonthTable::LeastWidth() const {
  const int planets = std::max(1, Model().columnCount() - 1);
  return MonthCellDelegate::LeastDayWidth() + planets * MonthCellDelegate::LeastPlanetWidth();
}

int MonthTable::LeastHeight(int days) { return HeadHeight() + days * LeastRow(); }

DayRows MonthTable::Rows() const {
  const double head = horizontalHeader()->height();
  return {head, head - verticalScrollBar()->value(),
          static_cast<double>(verticalHeader()->defaultSectionSize())};
}

// The planets share the width, the days the height.
void MonthTable::Fit() {
  const int columns = Model().columnCount();
  if (columns < 2) {
    return;
  }
  const int day = MonthCellDelegate::LeastDayWidth();
  const int each =
      std::max(MonthCellDelegate::LeastPlanetWidth(), (viewport()->width() - day) / (columns - 1));
  std::vector<int> widths(static_cast<std::size_t>(columns), each);
  widths.front() = std::max(day, viewport()->width() - each * (columns - 1));
  SetWidths(widths);
  const int row = FitRows(Model().rowCount(), viewport()->height(), LeastRow(),
                          std::max(LeastRow(), Scaled(kMostRow)));
  verticalHeader()->setDefaultSectionSize(row);
  // The column that stays in sight has rows of its own.
  for (QTableView* frozen : findChildren<QTableView*>()) {
    frozen->verticalHeader()->setMinimumSectionSize(1);
    frozen->verticalHeader()->setDefaultSectionSize(row);
  }
  emit RowsMoved();
}

void MonthTable::resizeEvent(QResizeEvent* event) {
  TableView::resizeEvent(event);
  Fit();
}

void MonthTable::scrollContentsBy(int dx, int dy) {
  TableView::scrollContentsBy(dx, dy);
  emit RowsMoved();
}

void MonthTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  TableView::currentChanged(current, previous);
  viewport()->update();  // both rows, whole
  emit RowsMoved();
}

void MonthTable::changeEvent(QEvent* event) {
  TableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    horizontalHeader()->setFixedHeight(HeadHeight());
    Fit();
  }
}

}  // namespace orvex::ui
