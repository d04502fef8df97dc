#include "ui/transit/transit_grid_page.h"

#include <QHBoxLayout>
#include <QShowEvent>
#include <QStackedWidget>
#include <algorithm>
#include <utility>

#include "core/exact_numbers.h"
#include "transit/month_cells.h"
#include "transit/transit_calendar.h"
#include "ui/base/calendar_saving.h"
#include "ui/base/export_table.h"
#include "ui/base/moment_edit.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/base/window_print.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/graphs/day_graph_view.h"
#include "ui/graphs/month_graph_view.h"
#include "ui/transit/find_transit_dialog.h"
#include "ui/transit/month_changes.h"
#include "ui/transit/month_legend.h"
#include "ui/transit/month_table.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {

namespace {

constexpr int kBuildDelay = 100;  // milliseconds

}  // namespace

TransitGridPage::TransitGridPage(Workplace& place)
    : place_(place),
      view_(transit::UserCityView(place.Session)),
      month_(core::PartsOf(place.Session.Time.Now()).Month),
      year_(core::PartsOf(place.Session.Time.Now()).Year),
      bar_(new MonthBar),
      grid_(new MonthTable),
      beside_(new DayGraphView),
      graph_(new MonthGraphView(place)),
      changes_(new MonthChanges(place)),
      views_(new QStackedWidget),
      legend_(new MonthLegend) {
  setObjectName("transitGrid");
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  LayOut();
  bar_->Time().SetTime(core::TimeOfDayOf(view_.TransitTime));
  bar_->ShowCity(view_.CityName);
  Connect();
  ConnectTables();
}

void TransitGridPage::LayOut() {
  grid_->setAccessibleName(tr("Planetary Transit"));
  grid_->SetEmptyText(tr("The positions of the month are being computed…"));
  OfferExport(place_, *grid_);
  views_->addWidget(BuildGrid());
  views_->addWidget(BuildGraph());
  views_->addWidget(changes_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM, space::kS, space::kM, 0);
  layout->addWidget(bar_);
  layout->addWidget(views_, 1);
}

// The legend stands under the grid alone.
QWidget* TransitGridPage::BuildGrid() {
  auto* pane = new QWidget;
  auto* row = new QHBoxLayout(pane);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(space::kM);
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  column->addWidget(grid_, 1);
  column->addWidget(legend_);
  row->addLayout(column, 1);
  row->addWidget(beside_);
  return pane;
}

QWidget* TransitGridPage::BuildGraph() {
  auto* pane = new QWidget;
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, space::kS);
  column->addWidget(graph_, 1);
  column->addLayout(GraphButtons(*pane, {graph_->PrintAction(), graph_->SaveAction()}));
  return pane;
}

void TransitGridPage::Connect() {
  build_.setSingleShot(true);
  build_.setInterval(kBuildDelay);
  connect(&build_, &QTimer::timeout, this, &TransitGridPage::Rebuild);
  connect(bar_, &MonthBar::MonthWanted, this, &TransitGridPage::CreateGrid);
  connect(bar_, &MonthBar::TodayWanted, this, &TransitGridPage::GoToToday);
  // Digits that are typed one after the other build the month once.
  connect(&bar_->Time(), &TimeEdit::Changed, this, [this] {
    if (const std::optional<core::TimeOfDay> time = bar_->Time().Time()) {
      view_.TransitTime = core::DateOnly(view_.TransitTime) + *time;
      build_.start();
    }
  });
  connect(bar_, &MonthBar::CityWanted, this, &TransitGridPage::ChangeCity);
  connect(bar_, &MonthBar::FindWanted, this, &TransitGridPage::FindTransit);
  connect(bar_, &MonthBar::ViewWanted, this, &TransitGridPage::TurnTo);
  connect(bar_, &MonthBar::CalendarWanted, this, &TransitGridPage::SaveToCalendar);
  connect(bar_, &MonthBar::PrintWanted, this, &TransitGridPage::Print);
}

void TransitGridPage::ConnectTables() {
  const auto open = [this](std::size_t row, std::size_t column) {
    SelectCell(static_cast<int>(row), static_cast<int>(column));
    OpenDetails(grid_->currentIndex());
  };
  connect(graph_, &MonthGraphView::CellChosen, this, open);
  connect(beside_, &DayGraphView::CellChosen, this, open);
  connect(grid_, &TableView::clicked, this, &TransitGridPage::OpenDetails);
  connect(grid_, &TableView::TagActivated, this, [this] { OpenDetails(grid_->currentIndex()); });
  connect(grid_, &MonthTable::RowsMoved, this, &TransitGridPage::FollowRows);
}

void TransitGridPage::FollowRows() {
  beside_->PlaceRows(grid_->Rows());
  beside_->ChooseRow(grid_->currentIndex().row());
}

void TransitGridPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) {
    return;
  }
  if (!std::exchange(opened_, true)) {
    const core::DateTime now = place_.Session.Time.Now();
    month_ = core::PartsOf(now).Month;
    year_ = core::PartsOf(now).Year;
    bar_->Time().SetTime(core::TimeOfDayOf(now));
  }
  build_.start();
}

void TransitGridPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShareRoom();
}

// The grid takes what shows all its planets, the graph beside it the rest; without room for both
// the grid is alone. The legend goes first where the days need its height.
void TransitGridPage::ShareRoom() {
  constexpr int kMostDays = 31;
  const QMargins margins = layout()->contentsMargins();
  const int room = width() - margins.left() - margins.right();
  const int graph = beside_->minimumSizeHint().width() + space::kM;
  const bool both = room >= grid_->LeastWidth() + graph;
  bar_->OfferBoth(both);
  const int days = std::max(1, grid_->Model().rowCount());
  const int head = bar_->sizeHint().height() + margins.top() + layout()->spacing();
  const int rows = height() - head - legend_->sizeHint().height();
  legend_->setVisible(rows >= MonthTable::LeastHeight(std::min(days, kMostDays)));
  const bool beside = both && wanted_ == MonthView::Both;
  beside_->setVisible(beside);
  grid_->setMinimumWidth(beside ? grid_->LeastWidth() : 1);
  grid_->setMaximumWidth(beside ? grid_->LeastWidth() : QWIDGETSIZE_MAX);
  bar_->MarkView(!both && wanted_ == MonthView::Both ? MonthView::Table : wanted_);
}

void TransitGridPage::Refresh() {
  if (isVisible()) {
    build_.start();
  }
}

QSize TransitGridPage::sizeHint() const {
  return {grid_->LeastWidth(), MonthTable::LeastHeight(1)};
}

QSize TransitGridPage::minimumSizeHint() const {
  const QMargins margins = layout()->contentsMargins();
  return {bar_->minimumSizeHint().width() + margins.left() + margins.right(), 1};
}

void TransitGridPage::FollowUserCity() {
  if (!ownCity_) {
    const transit::GridView user = transit::UserCityView(place_.Session);
    view_.CityName = user.CityName;
    view_.ZoneHours = user.ZoneHours;
  }
  bar_->ShowCity(view_.CityName);
}

void TransitGridPage::Rebuild() { CreateGrid(month_, year_); }

void TransitGridPage::CreateGrid(int month, int year) {
  build_.stop();
  FollowUserCity();
  month_ = month;
  year_ = year;
  ShowGrid(transit::CreateGrid(place_.Session, view_, month, year));
  if (mark_ && mark_->Month == month && mark_->Year == year) {
    ShowMark();
  }
}

bool TransitGridPage::IsThisMonth() const {
  const core::DateParts today = core::PartsOf(place_.Session.Time.Now());
  return today.Month == month_ && today.Year == year_;
}

void TransitGridPage::ShowGrid(transit::MonthGrid month) {
  const QModelIndex was = grid_->currentIndex();
  const int day = core::PartsOf(place_.Session.Time.Now()).Day - 1;
  const core::DateTime first = core::MakeDateTime({year_, month_, 1}).value();
  title_ = Shown(month.Title);
  bar_->ShowMonth(month);
  grid_->setAccessibleName(title_ + ", " + Shown(month.MonthLabel));
  graph_->ShowGrid(month);
  beside_->ShowMonth(graph_->Picture());
  changes_->SetMonth(month_, year_, view_.ZoneHours);
  std::vector<transit::MonthCellRow> cells = transit::MonthCells(
      month.Grid,
      transit::GridOfDay(place_.Session, view_, first - std::chrono::days(1)).Rows.front());
  grid_->ShowMonth(std::move(month.Grid), std::move(cells), IsThisMonth() ? day : -1);
  if (was.isValid()) {
    SelectCell(std::min(was.row(), grid_->Model().rowCount() - 1), was.column());
  } else {
    SelectCell(IsThisMonth() ? day : 0, 1);
  }
  ShareRoom();
  emit TitleChanged(title_);
}

void TransitGridPage::SelectCell(int row, int column) {
  const QModelIndex cell = grid_->Model().index(row, column);
  grid_->setCurrentIndex(cell);
  grid_->scrollTo(cell);
}

void TransitGridPage::GoToToday() {
  const core::DateParts today = core::PartsOf(place_.Session.Time.Now());
  CreateGrid(today.Month, today.Year);
  SelectCell(today.Day - 1, std::max(1, grid_->currentIndex().column()));
  FocusMonth();
}

void TransitGridPage::FocusMonth() {
  const QWidgetList views = {grid_, graph_, changes_};
  views.at(views_->currentIndex())->setFocus();
}

void TransitGridPage::HighlightCell(const transit::GridMark& mark) {
  mark_ = mark;
  CreateGrid(mark.Month, mark.Year);
  if (const std::optional<transit::CellPlace> cell = ShowMark()) {
    if (wanted_ != MonthView::Both) {
      TurnTo(MonthView::Table);
    }
    SelectCell(static_cast<int>(cell->Row), static_cast<int>(cell->Column));
    grid_->setFocus();
  }
}

// A month that is computed anew keeps what was found in it; what is selected stays selected.
std::optional<transit::CellPlace> TransitGridPage::ShowMark() {
  const QModelIndex was = grid_->currentIndex();  // its numbers outlive the table
  core::Table marked = grid_->Table();
  const auto cell = transit::HighlightCell(marked, mark_->DateText, mark_->PlanetName);
  if (cell) {
    grid_->ShowMarked(std::move(marked));
    SelectCell(was.row(), was.column());
  }
  return cell;
}

void TransitGridPage::FindTransit() {
  FindTransitDialog dialog(place_, this);
  if (dialog.exec() == QDialog::Accepted) {
    HighlightCell(dialog.Mark());
  }
}

void TransitGridPage::TurnTo(MonthView view) {
  wanted_ = view;
  views_->setCurrentIndex(view == MonthView::Graph ? 1 : view == MonthView::Changes ? 2 : 0);
  ShareRoom();
}

void TransitGridPage::ChangeCity() {
  if (const std::optional<PickedCity> city = PickCity(place_, this)) {
    ownCity_ = true;
    view_.CityName = city->Name;
    view_.ZoneHours = core::ToSingle(city->Offset);
    Rebuild();
  }
}

void TransitGridPage::SaveToCalendar() {
  const QString told = SaveCalendar(place_, *this, Typed(grid_->accessibleName()),
                                    transit::GridEvents(place_.Session, view_, month_, year_));
  if (!told.isEmpty()) {
    emit Done(told);
  }
}

void TransitGridPage::Print() {
  PrintWithPreview(place_, *this, PrintoutOf(*this, {title_, {}, {}}, place_.Session));
}

void TransitGridPage::OpenDetails(const QModelIndex& cell) {
  const auto planet = transit::PlanetOfCell(Typed(cell.data(TableModel::TagRole).toString()));
  const auto date = transit::DateOfRow(grid_->Model().TagOf(cell.row()));
  if (planet && date) {
    TransitDetailsDialog dialog(place_, *planet, *date, this);
    dialog.exec();
  }
}

}  // namespace orvex::ui
