#include "ui/base/table_plan.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>

#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/room_plan.h"

namespace orvex::ui {

namespace {

// A figure stands where it is read; words and chips take the room.
bool Grows(CellKind kind) {
  return kind != CellKind::Bold && kind != CellKind::Letter && kind != CellKind::Degree &&
         kind != CellKind::Figures && kind != CellKind::Age && kind != CellKind::Code;
}

}  // namespace

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

// Of columns with one caption the plan's first is the table's first.
std::vector<int> TablePlan::Places() const {
  const std::vector<core::Column>& columns = view_.Table().Columns;
  std::vector<int> places;
  for (const ColumnPlan& planned : columns_) {
    int place = -1;
    for (std::size_t i = 0; i < columns.size() && place < 0; ++i) {
      const bool free = std::count(places.begin(), places.end(), static_cast<int>(i)) == 0;
      place = free && columns[i].Caption == planned.Caption ? static_cast<int>(i) : -1;
    }
    places.push_back(place);
  }
  return places;
}

// Widths are told for the usual text; larger text needs more. A caption and a planet with its
// houses are never cut, words are.
int TablePlan::Least(const ColumnPlan& column, int place) const {
  const int told = column.Least * Theme::TextSize() / 100;
  if (column.Kind == CellKind::Heat) {
    return told;
  }
  const QHeaderView& header = *view_.horizontalHeader();
  const int caption = header.isHidden()
                          ? 0
                          : header.fontMetrics().horizontalAdvance(Shown(column.Caption)) +
                                2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin);
  const bool whole = column.Kind == CellKind::Chip || column.Kind == CellKind::Lord ||
                     column.Kind == CellKind::Nadi || column.Kind == CellKind::Houses ||
                     column.Kind == CellKind::Code;
  return std::max({told, caption, whole ? WidestCell(place) : 0});
}

int TablePlan::WidestCell(int column) const {
  QStyleOptionViewItem option;
  option.font = view_.font();
  int widest = 0;
  for (int row = 0; row < view_.model()->rowCount(); ++row) {
    widest = std::max(widest, cells_->PlacedWidth(option, view_.model()->index(row, column)));
  }
  return widest;
}

// What every column of the plan needs in the table that is shown.
void TablePlan::Measure() {
  needs_.clear();
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (places_[i] >= 0) {
      needs_.push_back(
          {places_[i], Least(columns_[i], places_[i]), columns_[i].Rank, Grows(columns_[i].Kind)});
    }
  }
}

void TablePlan::TakeKinds() {
  std::vector<CellKind> kinds(view_.Table().Columns.size(), CellKind::Text);
  std::vector<bool> underlined(kinds.size(), false);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (places_[i] >= 0) {
      kinds.at(static_cast<std::size_t>(places_[i])) = columns_[i].Kind;
      underlined.at(static_cast<std::size_t>(places_[i])) = columns_[i].SubLord;
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
  for (const int place : places_) {
    if (place >= 0) {
      header.moveSection(header.visualIndex(place), to++);
    }
  }
}

void TablePlan::Fit() {
  places_ = Places();
  TakeKinds();
  view_.setHorizontalScrollBarPolicy(all_ ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  PlaceColumns();
  Measure();
  ShareWidth();
  ShareHeight();
}

bool TablePlan::HasRoom() const {
  int least = 0;
  for (const Need& need : needs_) {
    least += need.Rank == 0 ? view_.WidthByHand(need.Column).value_or(need.Least) : 0;
  }
  return least <= view_.viewport()->width();
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

// What the columns that may grow share, in parts of their least widths.
void TablePlan::Spread(const std::vector<ColumnRoom>& rooms, const std::vector<bool>& shown,
                       int over) {
  const auto free = [&](std::size_t i) { return shown[i] && !view_.WidthByHand(needs_[i].Column); };
  bool words = false;
  for (std::size_t i = 0; i < needs_.size(); ++i) {
    words = words || (free(i) && needs_[i].Grows);
  }
  const auto grows = [&](std::size_t i) { return free(i) && (needs_[i].Grows || !words); };
  int spread = 0;
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    spread += grows(i) ? rooms[i].Least : 0;
  }
  std::vector<int> widths(view_.Table().Columns.size(), 0);
  int given = 0;
  int last = -1;
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    if (shown[i]) {
      const int more = grows(i) && spread > 0 ? over * rooms[i].Least / spread : 0;
      widths.at(static_cast<std::size_t>(needs_[i].Column)) = rooms[i].Least + more;
      given += more;
      last = grows(i) ? needs_[i].Column : last;
    }
  }
  if (last >= 0) {
    widths.at(static_cast<std::size_t>(last)) += over - given;
  }
  view_.SetWidths(widths);
}

// Every shown column has its least width or the one that the user gave it, which keeps it in sight,
// and its part of what is left over.
void TablePlan::ShareWidth() {
  if (all_) {
    return;
  }
  std::vector<ColumnRoom> rooms;
  for (const Need& need : needs_) {
    const std::optional<int> byHand = view_.WidthByHand(need.Column);
    rooms.push_back({byHand.value_or(need.Least), byHand ? 0 : need.Rank});
  }
  const int room = view_.viewport()->width();
  const std::vector<bool> shown = FitColumns(rooms, room);
  int taken = 0;
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    taken += shown[i] ? rooms[i].Least : 0;
  }
  // What the user has made wider than the room is reached by a bar.
  view_.setHorizontalScrollBarPolicy(taken > room ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  Spread(rooms, shown, std::max(0, room - taken));
}

void TablePlan::ShareHeight() {
  if (rows_.ShareRoom) {
    // Rows of figures alone stand closer than rows of chips.
    const int around = rows_.Least < height::kLeastRow ? 1 : space::kXs;
    const int least = std::max(rows_.Least, view_.fontMetrics().height() + around);
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
  const bool named = !places_.empty() && (columns_.front().Kind == CellKind::Chip ||
                                          columns_.front().Kind == CellKind::Code);
  const int name = named ? places_.front() : -1;
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
