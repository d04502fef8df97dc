#include "ui/horoscope/moved_tables.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QStackedWidget>
#include <algorithm>

#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/segments.h"
#include "ui/base/table_plan.h"

namespace orvex::ui {

namespace {

// clang-format off
const std::vector<ColumnPlan> kMovedLordColumns = {
    {"Ascendant",    CellKind::Text,  70, 0},
    {"Position",     CellKind::Text, 104, 1},
    {"Sign Lord",    CellKind::Chip,  80, 0},
    {"Star Lord",    CellKind::Chip,  80, 0},
    {"Sub Lord",     CellKind::Chip,  80, 0},
    {"Sub Sub Lord", CellKind::Chip,  86, 2}};

const std::vector<ColumnPlan> kMovedCuspColumns = {
    {"Cusp",         CellKind::Text,   40, 0},
    {"Degree",       CellKind::Degree, 76, 0},
    {"Sign Lord",    CellKind::Chip,   80, 1},
    {"Star Lord",    CellKind::Chip,   80, 0},
    {"Sub Lord",     CellKind::Chip,   80, 0},
    {"Sub Sub Lord", CellKind::Chip,   86, 2}};

const std::vector<ColumnPlan> kMovedPlanetColumns = {
    {"Planet",       CellKind::Chip,   80, 0},
    {"Degree",       CellKind::Degree, 76, 0},
    {"R",            CellKind::Text,   22, 0},
    {"Rashi House",  CellKind::Text,   76, 4},
    {"Chalit House", CellKind::Text,   78, 3},
    {"Sign Lord",    CellKind::Chip,   80, 1},
    {"Star Lord",    CellKind::Chip,   80, 0},
    {"Sub Lord",     CellKind::Chip,   80, 0},
    {"Sub Sub Lord", CellKind::Chip,   86, 2}};

const std::vector<ColumnPlan> kMovedDashaColumns = {
    {"Planet",   CellKind::Chip, 80, 0},
    {"End Date", CellKind::Text, 84, 0}};
// clang-format on

// Marks the cells that differ from those of the birth.
core::Table WithChangesMarked(core::Table table, const core::Table& birth) {
  for (std::size_t row = 0; row < std::min(table.Rows.size(), birth.Rows.size()); ++row) {
    std::vector<core::Cell>& cells = table.Rows[row].Cells;
    for (std::size_t column = 0; column < cells.size(); ++column) {
      if (cells[column].Text != birth.Rows[row].Cells.at(column).Text) {
        cells[column].Background = horoscope::kMovedColor;
        cells[column].Bold = true;
      }
    }
  }
  return table;
}

}  // namespace

MovedTables::MovedTables(Workplace& place)
    : lords_(Named(new TableView, "movedLords")),
      shown_(new Segments({{"showCusps", tr("Cusps")}, {"showPlanets", tr("Planets")}})),
      tables_(new QStackedWidget),
      cusps_(Named(new TableView, "workCusps")),
      planets_(Named(new TableView, "workPlanets")),
      dashas_(Named(new TableView, "workDashas")),
      balance_(MakeCaptionLabel("workBalance")) {
  LayOut();
  PlanTables(place);
  connect(shown_, &Segments::ChosenChanged, tables_, &QStackedWidget::setCurrentIndex);
}

void MovedTables::LayOut() {
  auto* beside = new QHBoxLayout;
  beside->setSpacing(space::kM);
  beside->addWidget(LayOutTables(), 2);
  beside->addWidget(LayOutDashas(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addWidget(lords_);
  layout->addLayout(beside, 1);
}

QWidget* MovedTables::LayOutTables() {
  shown_->setAccessibleName(tr("Table"));
  tables_->addWidget(cusps_);
  tables_->addWidget(planets_);
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addWidget(shown_, 0, Qt::AlignLeft);
  layout->addWidget(tables_, 1);
  return part;
}

QWidget* MovedTables::LayOutDashas() {
  balance_->setWordWrap(true);
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addWidget(MakeHeading(tr("Dashas")));
  layout->addWidget(dashas_, 1);
  layout->addWidget(balance_);
  return part;
}

void MovedTables::PlanTables(Workplace& place) {
  const std::pair<TableView*, QString> names[] = {{lords_, tr("Old and new lords")},
                                                  {cusps_, tr("Cusps")},
                                                  {planets_, tr("Planets")},
                                                  {dashas_, tr("Dashas")}};
  for (const auto& [view, name] : names) {
    view->setAccessibleName(name);
    view->setSortingEnabled(false);
    view->setMinimumHeight(1);
    OfferExport(place, *view);
  }
  constexpr RowBounds kTight{height::kGridRow, height::kListRow};
  constexpr RowBounds kFixed{height::kLeastRow, height::kLeastRow, false};
  plans_ = {new TablePlan(*lords_, kMovedLordColumns, kFixed),
            new TablePlan(*cusps_, kMovedCuspColumns, kTight),
            new TablePlan(*planets_, kMovedPlanetColumns, kTight),
            new TablePlan(*dashas_, kMovedDashaColumns, kTight)};
  for (TableView* view : {cusps_, planets_, dashas_}) {
    view->setFont(Theme::Text(type::kSmall));
  }
  lords_->verticalHeader()->setDefaultSectionSize(
      std::max<int>(height::kLeastRow, lords_->fontMetrics().height() + space::kXs));
  lords_->FitHeightToRows();
}

void MovedTables::ShowMoved(const horoscope::Recalculation& moved,
                            const horoscope::Recalculation& ofBirth, const core::Table& lords) {
  lords_->SetTable(lords);
  lords_->setVisible(!lords.Rows.empty());
  cusps_->SetTable(WithChangesMarked(moved.Cusps, ofBirth.Cusps));
  planets_->SetTable(WithChangesMarked(moved.Planets, ofBirth.Planets));
  dashas_->SetTable(WithChangesMarked(moved.Dashas, ofBirth.Dashas));
  balance_->setText(Shown(moved.DashaBalance));
  for (TablePlan* plan : plans_) {
    plan->Fit();
  }
}

}  // namespace orvex::ui
