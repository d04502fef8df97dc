#include "ui/transit/transit_grid_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QShowEvent>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "core/exact_numbers.h"
#include "transit/month_name.h"
#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/graphs/month_graph_view.h"
#include "ui/transit/find_transit_dialog.h"
#include "ui/transit/month_changes.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {

namespace {

constexpr int kBuildDelay = 100;  // milliseconds
constexpr int kMonths = 12;

// The blanks ahead of the positions line up texts of a fixed column; here they only take room.
class PositionDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& /*locale*/) const override {
    const QString text = value.toString();
    qsizetype blanks = 0;
    while (blanks < text.size() && text[blanks] == ' ') {
      ++blanks;
    }
    return text.mid(blanks);
  }
};

QComboBox* List(const char* name, const QString& title) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  list->setAccessibleName(title);
  list->setMaxVisibleItems(kMonths);
  return list;
}

}  // namespace

TransitGridPage::TransitGridPage(Workplace& place)
    : place_(place),
      view_(transit::UserCityView(place.Session)),
      month_(core::PartsOf(place.Session.Time.Now()).Month),
      year_(core::PartsOf(place.Session.Time.Now()).Year),
      previous_(MakeButton("previousMonth", {})),
      monthLabel_(MakeCaptionLabel("monthLabel")),
      next_(MakeButton("nextMonth", {})),
      thisMonth_(new LinkButton("thisMonth")),
      find_(MakeButton("findTransit", tr("&Find transit…"))),
      months_(List("months", tr("Month"))),
      years_(List("years", tr("Year"))),
      go_(MakeButton("goToMonth", tr("G&o"))),
      time_(new TimeEdit("transitTime", TimeEdit::Shows::Minutes)),
      city_(MakeButton("changeCity", tr("Change c&ity…"))),
      title_(MakeCaptionLabel("gridTitle")),
      showGraph_(MakeButton("showGraph", tr("Gra&ph"))),
      showChanges_(MakeButton("showChanges", tr("Cha&nges"))),
      grid_(new TableView),
      graph_(new MonthGraphView(place)),
      changes_(new MonthChanges(place)),
      views_(new QStackedWidget) {
  setObjectName("transitGrid");
  FillLists();
  LayOut();
  time_->SetTime(core::TimeOfDayOf(view_.TransitTime));
  Connect();
}

void TransitGridPage::FillLists() {
  for (int month = 1; month <= kMonths; ++month) {
    months_->addItem(Shown(transit::MonthName(core::MakeDateTime({year_, month, 1}).value())));
  }
  QStringList years;
  for (int year = transit::kFirstGridYear; year <= transit::kLastGridYear; ++year) {
    years << WholeText(year);
  }
  years_->addItems(years);
  months_->setCurrentIndex(month_ - 1);
  years_->setCurrentText(WholeText(year_));
}

void TransitGridPage::LayOut() {
  grid_->setObjectName("grid");
  grid_->setAccessibleName(tr("Planetary Transit"));
  grid_->setSortingEnabled(false);
  grid_->setSelectionBehavior(QAbstractItemView::SelectItems);
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->verticalHeader()->setDefaultSectionSize(grid_->fontMetrics().height() + kGrid / 2);
  grid_->SetEmptyText(tr("The positions of the month are being computed…"));
  // So close together that all planets stand side by side.
  grid_->SetColumnRoom(kGrid / 4);
  grid_->FreezeFirstColumn();
  grid_->setItemDelegate(new PositionDelegate(grid_));
  OfferExport(place_, *grid_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(BuildMonths());
  layout->addLayout(BuildChoices());
  layout->addWidget(title_);
  views_->addWidget(grid_);
  views_->addWidget(BuildGraph());
  views_->addWidget(changes_);
  layout->addWidget(views_, 1);
}

QWidget* TransitGridPage::BuildGraph() {
  auto* pane = new QWidget;
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(graph_, 1);
  column->addLayout(GraphButtons(*pane, {graph_->PrintAction(), graph_->SaveAction()}));
  return pane;
}

QHBoxLayout* TransitGridPage::BuildMonths() {
  monthLabel_->setFont(Theme::HeadingFont());
  monthLabel_->setAlignment(Qt::AlignCenter);
  auto* row = new QHBoxLayout;
  row->addWidget(previous_);
  row->addWidget(monthLabel_, 1);
  row->addWidget(thisMonth_);
  row->addWidget(next_);
  return row;
}

QHBoxLayout* TransitGridPage::BuildChoices() {
  auto* at = new QLabel(tr("&at"));
  at->setBuddy(time_);
  time_->setAccessibleName(tr("Time of day"));
  auto* row = new QHBoxLayout;
  for (QWidget* widget :
       std::initializer_list<QWidget*>{months_, years_, go_, at, time_, time_->MakeEcho(), city_}) {
    row->addWidget(widget);
  }
  row->addStretch();
  for (QPushButton* view : {showGraph_, showChanges_}) {
    view->setCheckable(true);
    row->addWidget(view);
  }
  row->addWidget(find_);
  return row;
}

void TransitGridPage::Connect() {
  build_.setSingleShot(true);
  build_.setInterval(kBuildDelay);
  connect(&build_, &QTimer::timeout, this, &TransitGridPage::Rebuild);
  connect(go_, &QPushButton::clicked, this, [this] {
    CreateGrid(months_->currentIndex() + 1, years_->currentIndex() + transit::kFirstGridYear);
  });
  connect(next_, &QPushButton::clicked, this, [this] { GoToTag(nextTag_); });
  connect(previous_, &QPushButton::clicked, this, [this] { GoToTag(previousTag_); });
  connect(thisMonth_, &QPushButton::clicked, this, [this] { GoToTag(thisMonthTag_); });
  // Digits that are typed one after the other build the month once.
  connect(time_, &TimeEdit::Changed, this, [this] {
    if (const std::optional<core::TimeOfDay> time = time_->Time()) {
      view_.TransitTime = core::DateOnly(view_.TransitTime) + *time;
      build_.start();
    }
  });
  connect(city_, &QPushButton::clicked, this, &TransitGridPage::ChangeCity);
  connect(find_, &QPushButton::clicked, this, &TransitGridPage::FindTransit);
  connect(showGraph_, &QPushButton::toggled, this, [this](bool graph) {
    showGraph_->setText(graph ? tr("Ta&ble") : tr("Gra&ph"));
    TurnTo(graph ? View::Graph : View::Table);
  });
  connect(showChanges_, &QPushButton::toggled, this,
          [this](bool changes) { TurnTo(changes ? View::Changes : View::Table); });
  connect(graph_, &MonthGraphView::CellChosen, this, [this](std::size_t row, std::size_t column) {
    OpenDetails(grid_->Model().index(static_cast<int>(row), static_cast<int>(column)));
  });
  connect(grid_, &TableView::clicked, this, &TransitGridPage::OpenDetails);
  connect(grid_, &TableView::TagActivated, this, [this] { OpenDetails(grid_->currentIndex()); });
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
    time_->SetTime(core::TimeOfDayOf(now));
  }
  build_.start();
}

void TransitGridPage::Refresh() {
  if (isVisible()) {
    build_.start();
  }
}

QSize TransitGridPage::sizeHint() const {
  constexpr int kMonthWidth = 97 * kGrid;  // a month without a bar
  return {kMonthWidth, QWidget::sizeHint().height()};
}

void TransitGridPage::FollowUserCity() {
  if (!ownCity_) {
    const transit::GridView user = transit::UserCityView(place_.Session);
    view_.CityName = user.CityName;
    view_.ZoneHours = user.ZoneHours;
  }
}

void TransitGridPage::Rebuild() { CreateGrid(month_, year_); }

void TransitGridPage::CreateGrid(int month, int year) {
  build_.stop();
  FollowUserCity();
  month_ = month;
  year_ = year;
  months_->setCurrentIndex(month - 1);
  years_->setCurrentText(WholeText(year));
  ShowGrid(transit::CreateGrid(place_.Session, view_, month, year));
  if (mark_ && mark_->Month == month && mark_->Year == year) {
    ShowMark();
  }
}

void TransitGridPage::ShowGrid(transit::MonthGrid month) {
  const QModelIndex was = grid_->currentIndex();
  const bool isThisMonth = !month.ThisMonth.Offered;
  title_->setText(Shown(month.Title));
  monthLabel_->setText(Shown(month.MonthLabel));
  previous_->setText(Shown(month.Previous.Caption));
  previous_->setEnabled(month.Previous.Offered);
  next_->setText(Shown(month.Next.Caption));
  next_->setEnabled(month.Next.Offered);
  thisMonth_->setText(Shown(month.ThisMonth.Caption));
  thisMonth_->setVisible(month.ThisMonth.Offered);
  previousTag_ = month.Previous.Tag;
  nextTag_ = month.Next.Tag;
  thisMonthTag_ = month.ThisMonth.Tag;
  grid_->setAccessibleName(tr("Planetary Transit") + ' ' + monthLabel_->text());
  graph_->ShowGrid(month);
  changes_->SetMonth(month_, year_, view_.ZoneHours);
  grid_->SetTable(std::move(month.Grid));
  if (was.isValid()) {
    SelectCell(std::min(was.row(), grid_->Model().rowCount() - 1), was.column());
  } else {
    SelectCell(isThisMonth ? core::PartsOf(place_.Session.Time.Now()).Day - 1 : 0, 1);
  }
}

void TransitGridPage::SelectCell(int row, int column) {
  const QModelIndex cell = grid_->Model().index(row, column);
  grid_->setCurrentIndex(cell);
  grid_->scrollTo(cell);
}

void TransitGridPage::GoToTag(const std::string& tag) {
  if (const auto first = transit::MonthOfTag(tag)) {
    const core::DateParts parts = core::PartsOf(*first);
    CreateGrid(parts.Month, parts.Year);
  }
}

void TransitGridPage::HighlightCell(const transit::GridMark& mark) {
  mark_ = mark;
  CreateGrid(mark.Month, mark.Year);
  if (const std::optional<transit::CellPlace> cell = ShowMark()) {
    showGraph_->setChecked(false);
    showChanges_->setChecked(false);
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
    grid_->SetTable(std::move(marked));
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

// Each of the two buttons turns to its view and back to the table; pressed, it releases the other.
void TransitGridPage::TurnTo(View view) {
  if (view != View::Table) {
    showGraph_->setChecked(view == View::Graph);
    showChanges_->setChecked(view == View::Changes);
  }
  const View shown = showGraph_->isChecked()     ? View::Graph
                     : showChanges_->isChecked() ? View::Changes
                                                 : View::Table;
  views_->setCurrentIndex(static_cast<int>(shown));
}

void TransitGridPage::ChangeCity() {
  if (const std::optional<PickedCity> city = PickCity(place_, this)) {
    ownCity_ = true;
    view_.CityName = city->Name;
    view_.ZoneHours = core::ToSingle(city->Offset);
    Rebuild();
  }
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
