#include "ui/base/table_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <set>

#include "ui/base/cell_delegate.h"
#include "ui/base/frozen_column.h"
#include "ui/base/layout_memory.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kWidestColumn = 45 * kGrid;
constexpr int kWidestTable = 80 * kGrid;

// A cell's text in one line between tabs.
QString CopiedCell(const std::string& text) {
  return Shown(text).replace('\t', ' ').replace('\n', ' ').remove('\r');
}

}  // namespace

TableView::TableView(QWidget* parent)
    : QTableView(parent), model_(new TableModel(this)), columnRoom_(kGrid) {
  setModel(model_);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setItemDelegate(new CellDelegate(this));
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kGrid);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSortIndicatorClearable(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
    emit TagActivated(Shown(model_->TagOf(index.row())));
  });
  // The selection model hears of it first.
  connect(model_, &TableModel::layoutChanged, this, [this] {
    JoinCurrentRow();
    ReportChoice();
    if (currentIndex().isValid()) {
      scrollTo(currentIndex());
    }
  });
}

void TableView::SetTable(core::Table table) {
  model_->SetTable(std::move(table));
  LayOutTable();
  SelectMarked();
  ReportChoice();
}

void TableView::LayOutTable() {
  HideColumns();
  SizeToContent();
}

// A column that comes back takes its width again, which is not the user's doing.
void TableView::HideColumns() {
  sizing_ = true;
  for (int column = 0; column < model_->columnCount(); ++column) {
    setColumnHidden(column, Table().Columns[static_cast<std::size_t>(column)].Width == 0);
  }
  sizing_ = false;
}

void TableView::SizeToContent() {
  sizing_ = true;
  resizeColumnsToContents();
  for (int column = 0; column < model_->columnCount(); ++column) {
    if (!isColumnHidden(column) && column != stretchColumn_) {
      setColumnWidth(column, KeptWidth(column).value_or(UsualWidth(column)));
    }
  }
  if (stretchColumn_ >= 0 && stretchColumn_ < model_->columnCount()) {
    horizontalHeader()->setSectionResizeMode(stretchColumn_, QHeaderView::Stretch);
  }
  sizing_ = false;
  if (fitsHeight_) {
    setFixedHeight(sizeHint().height());
  }
  updateGeometry();
}

// The measured width with some room; a table without rows takes the widths that it asks for.
int TableView::UsualWidth(int column) const {
  const int measured = std::min(columnWidth(column) + columnRoom_, kWidestColumn);
  const int own = Table().Columns[static_cast<std::size_t>(column)].Width;
  return model_->rowCount() > 0 ? measured : std::max(measured, own);
}

void TableView::RememberWidths(LayoutMemory& memory) {
  memory_ = &memory;
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int /*before*/, int width) { KeepWidth(column, width); });
}

void TableView::KeepWidth(int column, int width) {
  // A column that takes the room left is resized with its window.
  const bool isLast = column == model_->columnCount() - 1;
  const bool stretches =
      column == stretchColumn_ || (isLast && horizontalHeader()->stretchLastSection());
  if (!sizing_ && !stretches && width > 0) {
    memory_->KeepColumnWidth(*this, CaptionOf(column), width);
  }
}

std::optional<int> TableView::KeptWidth(int column) const {
  const bool any = memory_ != nullptr && column < model_->columnCount();
  return !any ? std::nullopt : memory_->ColumnWidth(*this, CaptionOf(column));
}

QString TableView::CaptionOf(int column) const {
  return Shown(Table().Columns[static_cast<std::size_t>(column)].Caption);
}

void TableView::FreezeFirstColumn() { new FrozenColumn(*this); }

void TableView::SetEmptyText(const QString& text) {
  emptyText_ = text;
  viewport()->update();
}

core::Table TableView::ShownTable() const {
  core::Table shown{Table().Columns, {}};
  for (int row = 0; row < model_->rowCount(); ++row) {
    shown.Rows.push_back(model_->ShownRowAt(row));
  }
  return shown;
}

QString TableView::AsTabbedText() const {
  std::set<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    rows.insert(index.row());
  }
  const bool all = rows.size() < 2;
  QStringList captions;
  for (int column = 0; column < model_->columnCount(); ++column) {
    if (!isColumnHidden(column)) {
      captions << CopiedCell(Table().Columns[static_cast<std::size_t>(column)].Caption);
    }
  }
  QString text = captions.join('\t') + '\n';
  for (int row = 0; row < model_->rowCount(); ++row) {
    if (!all && !rows.contains(row)) {
      continue;
    }
    QStringList cells;
    for (int column = 0; column < model_->columnCount(); ++column) {
      if (!isColumnHidden(column)) {
        cells << CopiedCell(Typed(model_->index(row, column).data().toString()));
      }
    }
    text += cells.join('\t') + '\n';
  }
  return text;
}

void TableView::CopyToClipboard() const { QGuiApplication::clipboard()->setText(AsTabbedText()); }

void TableView::SetExport(std::function<void(const core::Table&)> exportTable) {
  export_ = std::move(exportTable);
}

void TableView::AddMenuAction(QAction* action) { actions_.push_back(action); }

void TableView::FitHeightToRows() {
  fitsHeight_ = true;
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  SizeToContent();
}

void TableView::SetWidths(const std::vector<int>& widths) {
  sizing_ = true;
  for (int column = 0; column < model_->columnCount(); ++column) {
    const auto place = static_cast<std::size_t>(column);
    const int width = place < widths.size() ? widths[place] : 0;
    setColumnHidden(column, width == 0);
    if (width > 0) {
      setColumnWidth(column, width);
    }
  }
  sizing_ = false;
}

void TableView::ShowAllColumns() {
  HideColumns();
  SizeToContent();
}

void TableView::SetStretchColumn(int column) { stretchColumn_ = column; }

QSize TableView::sizeHint() const {
  constexpr int kMostRows = 14;
  const int rows = fitsHeight_ ? model_->rowCount() : std::min(model_->rowCount(), kMostRows);
  const int header = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sizeHint().height();
  const int height = header + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
  const int bar = fitsHeight_ ? 0 : verticalScrollBar()->sizeHint().width();
  const int width = std::min(horizontalHeader()->length() + bar, kWidestTable);
  return {width + 2 * frameWidth(), height};
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopyToClipboard();
    return;
  }
  const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enters && currentIndex().isValid()) {
    emit TagActivated(Shown(model_->TagOf(currentIndex().row())));
    return;
  }
  const bool toEnd = event->key() == Qt::Key_End;
  const bool jumps = (toEnd || event->key() == Qt::Key_Home) &&
                     (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (jumps && ChoosesRows() && model_->rowCount() > 0) {
    Choose(toEnd ? model_->rowCount() - 1 : 0);
    return;
  }
  QTableView::keyPressEvent(event);
}

void TableView::FillMenu(QMenu& menu) {
  for (QAction* action : actions_) {
    menu.addAction(action);
  }
  if (!actions_.empty()) {
    menu.addSeparator();
  }
  menu.addAction(selectionModel()->selectedRows().size() > 1 ? tr("&Copy rows") : tr("&Copy table"),
                 QKeySequence::Copy, this, [this] { CopyToClipboard(); });
  if (export_) {
    menu.addAction(tr("E&xport to spreadsheet…"), this, [this] { export_(ShownTable()); });
  }
}

void TableView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.setObjectName("tableMenu");
  FillMenu(menu);
  menu.exec(event->globalPos());
}

void TableView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (model_->rowCount() > 0 || emptyText_.isEmpty()) {
    return;
  }
  QPainter painter(viewport());
  painter.setPen(Theme::Muted());
  painter.drawText(viewport()->rect().adjusted(kGrid, kGrid, -kGrid, -kGrid),
                   Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

// A text that its column cuts off is told in full.
bool TableView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = dynamic_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const bool isCut = index.isValid() && index.data(Qt::ToolTipRole).isNull() &&
                       sizeHintForIndex(index).width() > columnWidth(index.column());
    if (isCut) {
      QToolTip::showText(help->globalPos(), PlainTip(index.data().toString()), this);
      return true;
    }
  }
  return QTableView::viewportEvent(event);
}

}  // namespace orvex::ui
