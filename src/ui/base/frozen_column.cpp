#include "ui/base/frozen_column.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QScrollBar>

namespace orvex::ui {

FrozenColumn::FrozenColumn(QTableView& table) : QTableView(&table), table_(table) {
  setObjectName("frozenColumn");
  setModel(table.model());
  setSelectionModel(table.selectionModel());
  setSelectionBehavior(table.selectionBehavior());
  setSelectionMode(table.selectionMode());
  setItemDelegate(table.itemDelegate());
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(table.alternatingRowColors());
  setShowGrid(table.showGrid());
  setWordWrap(false);
  setFrameShape(NoFrame);
  setFocusProxy(&table);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(table.verticalScrollMode());
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(table.verticalHeader()->defaultSectionSize());
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionsClickable(true);
  FollowTable();
  table.viewport()->installEventFilter(this);
  Place();
  show();
}

void FrozenColumn::FollowTable() {
  connect(this, &QTableView::doubleClicked, &table_, &QTableView::doubleClicked);
  connect(this, &QTableView::activated, &table_, &QTableView::activated);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, table_.verticalScrollBar(),
          &QScrollBar::setValue);
  connect(table_.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
          &QScrollBar::setValue);
  connect(table_.horizontalHeader(), &QHeaderView::sectionResized, this, &FrozenColumn::Place);
  connect(table_.model(), &QAbstractItemModel::modelReset, this, &FrozenColumn::Place);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &FrozenColumn::SortByFirstColumn);
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  connect(table_.horizontalHeader(), &QHeaderView::sortIndicatorChanged, horizontalHeader(),
          &QHeaderView::setSortIndicator);
}

// A header of the table goes up, down and back to the table's own order; so does this one.
void FrozenColumn::SortByFirstColumn() {
  QHeaderView& header = *table_.horizontalHeader();
  if (header.sortIndicatorSection() != 0) {
    header.setSortIndicator(0, Qt::AscendingOrder);
  } else if (header.sortIndicatorOrder() == Qt::AscendingOrder) {
    header.setSortIndicator(0, Qt::DescendingOrder);
  } else {
    header.setSortIndicator(-1, Qt::AscendingOrder);
  }
}

void FrozenColumn::Place() {
  for (int column = 1; column < model()->columnCount(); ++column) {
    setColumnHidden(column, true);
  }
  const int width = table_.columnWidth(0);
  setColumnWidth(0, width);
  horizontalHeader()->setFixedHeight(table_.horizontalHeader()->height());
  const int frame = table_.frameWidth();
  setGeometry(frame, frame, width,
              table_.viewport()->height() + table_.horizontalHeader()->height());
}

bool FrozenColumn::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    Place();
  }
  return QTableView::eventFilter(watched, event);
}

void FrozenColumn::contextMenuEvent(QContextMenuEvent* event) {
  QCoreApplication::sendEvent(table_.viewport(), event);
}

void FrozenColumn::wheelEvent(QWheelEvent* event) {
  QCoreApplication::sendEvent(table_.viewport(), event);
}

}  // namespace orvex::ui
