#include "ui/base/table_plan.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <algorithm>

#include "ui/base/cell_text.h"
#include "ui/base/room_plan.h"

namespace orvex::ui {

TablePlan::TablePlan(TableView& view, std::vector<ColumnPlan> columns, RowBounds rows)
    : QObject(&view),
      view_(view),
      columns_(std::move(columns)),
      rows_(rows),
      cells_(new CellDelegate(this)) {
  view.setItemDelegate(cells_);
  view.setFrameShape(QFrame::NoFrame);
  view.installEventFilter(this);
  view.viewport()->installEventFilter(this);
}

int TablePlan::ColumnOf(const std::string& caption) const {
  const std::vector<core::Column>& columns = view_.Table().Columns;
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const core::Column& column) {
    return column.Caption == caption;
  });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

// Widths are told for the usual text; larger text needs more.
int TablePlan::Least(const ColumnPlan& column) const {
  return column.Least * Theme::TextSize() / 100;
}

void TablePlan::TakeKinds() {
  std::vector<CellKind> kinds(view_.Table().Columns.size(), CellKind::Text);
  std::vector<bool> underlined(kinds.size(), false);
  for (const ColumnPlan& column : columns_) {
    if (const int place = ColumnOf(column.Caption); place >= 0) {
      kinds.at(static_cast<std::size_t>(place)) = column.Kind;
      underlined.at(static_cast<std::size_t>(place)) = column.SubLord;
    }
  }
  cells_->SetKinds(std::move(kinds));
  cells_->SetUnderlined(std::move(underlined));
}

// The plan's columns from the left in its order; the whole table in its own.
void TablePlan::PlaceColumns() {
  QHeaderView& header = *view_.horizontalHeader();
  for (int column = 0; column < header.count(); ++column) {
    header.moveSection(header.visualIndex(column), column);
  }
  if (all_) {
    return;
  }
  int to = 0;
  for (const ColumnPlan& column : columns_) {
    if (const int place = ColumnOf(column.Caption); place >= 0) {
      header.moveSection(header.visualIndex(place), to++);
    }
  }
}

void TablePlan::Fit() {
  TakeKinds();
  view_.setHorizontalScrollBarPolicy(all_ ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  PlaceColumns();
  ShareWidth();
  ShareHeight();
}

void TablePlan::ShowAll(bool all) {
  if (all_ != all) {
    all_ = all;
    view_.ShowAllColumns();
    Fit();
    emit AllShown(all);
  }
}

void TablePlan::SetChosen(const QString& code) {
  cells_->SetChosen(code);
  view_.viewport()->update();
}

// Every shown column has its least width or the one that the user gave it, and its part of what is
// left over.
void TablePlan::ShareWidth() {
  if (all_) {
    return;
  }
  std::vector<ColumnRoom> rooms;
  std::vector<int> places;
  for (const ColumnPlan& column : columns_) {
    if (const int place = ColumnOf(column.Caption); place >= 0) {
      places.push_back(place);
      rooms.push_back({view_.WidthByHand(place).value_or(Least(column)), column.Rank});
    }
  }
  const int room = view_.viewport()->width();
  const std::vector<bool> shown = FitColumns(rooms, room);
  int taken = 0;
  int spread = 0;
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    taken += shown[i] ? rooms[i].Least : 0;
    spread += shown[i] && !view_.WidthByHand(places[i]) ? rooms[i].Least : 0;
  }
  const int over = std::max(0, room - taken);
  std::vector<int> widths(view_.Table().Columns.size(), 0);
  int given = 0;
  int last = -1;
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    if (shown[i]) {
      const bool grows = spread > 0 && !view_.WidthByHand(places[i]);
      const int more = grows ? over * rooms[i].Least / spread : 0;
      widths.at(static_cast<std::size_t>(places[i])) = rooms[i].Least + more;
      given += more;
      last = grows ? places[i] : last;
    }
  }
  if (last >= 0) {
    widths.at(static_cast<std::size_t>(last)) += over - given;
  }
  view_.SetWidths(widths);
}

void TablePlan::ShareHeight() {
  if (rows_.ShareRoom) {
    const int least = std::max(rows_.Least, view_.fontMetrics().height() + space::kXs);
    view_.verticalHeader()->setDefaultSectionSize(FitRows(
        view_.model()->rowCount(), view_.viewport()->height(), least, std::max(least, rows_.Most)));
  }
}

// The chip at a point; beside the chips, the planet that the row is about.
void TablePlan::Click(const QPoint& at) {
  const QModelIndex index = view_.indexAt(at);
  if (!index.isValid()) {
    return;
  }
  QStyleOptionViewItem option;
  option.rect = view_.visualRect(index);
  option.font = view_.font();
  QString code = cells_->CodeAt(option, index, at);
  const ColumnPlan& first = columns_.front();
  const int name = first.Kind == CellKind::Chip ? ColumnOf(first.Caption) : -1;
  if (code.isEmpty() && name >= 0) {
    code = CodeOfWord(index.siblingAtColumn(name).data().toString());
  }
  if (!code.isEmpty()) {
    emit CodeClicked(code);
  }
}

bool TablePlan::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && watched == view_.viewport()) {
    ShareWidth();
    ShareHeight();
  }
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    view_.horizontalHeader()->viewport()->update();
  }
  if (watched == view_.viewport() && event->type() == QEvent::MouseButtonDblClick) {
    secondClick_ = true;
  }
  if (watched == view_.viewport() && event->type() == QEvent::MouseButtonRelease) {
    if (!secondClick_) {
      Click(static_cast<QMouseEvent*>(event)->position().toPoint());
    }
    secondClick_ = false;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace orvex::ui
