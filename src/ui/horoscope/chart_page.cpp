#include "ui/horoscope/chart_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "chart/horoscope_model.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/segments.h"
#include "ui/base/theme.h"
#include "ui/horoscope/birth_panel.h"

namespace orvex::ui {

namespace {

// Pixels at the usual text size.
constexpr int kLeastSideWidth = 192;
constexpr int kMostSideWidth = 250;
constexpr double kSidePart = 0.168;  // of the width
constexpr int kNarrowWidth = 900;    // below, one chart and one table
constexpr int kNarrowHeight = 540;
constexpr int kRoomForSide = 1000;
constexpr int kLeastSide = 160;
constexpr double kChartPart = 0.232;  // of the width
constexpr double kOneChartPart = 0.30;
constexpr std::array<char, 3> kStyleOrder = {'N', 'E', 'S'};

QLabel* SmallTitle(const QString& text) {
  QLabel* title = MakeHeading(text);
  title->setMinimumHeight(height::kSmallField);
  return title;
}

// The column of a table without its captions' rank: what a KP reading looks at stays longest.
// clang-format off
std::vector<ColumnPlan> PlanetColumns() {
  return {{"Planet",       CellKind::Chip,   112, 0},
          {"In",           CellKind::Bold,    28, 0},
          {"Owner",        CellKind::Text,    46, 4},
          {"Degree",       CellKind::Degree,  78, 0},
          {"Sign Lord",    CellKind::Lord,    70, 2},
          {"Star Lord",    CellKind::Lord,    70, 0},
          {"Sub Lord",     CellKind::Lord,    70, 0},
          {"Sub Sub Lord", CellKind::Lord,    78, 1},
          {"S/T/U",        CellKind::Letter,  40, 3},
          {"Nakshatra",    CellKind::Text,   104, 5},
          {"Pada",         CellKind::Text,    40, 6},
          {"Type",         CellKind::Text,    90, 7},
          {"Gunas",        CellKind::Text,    90, 8}};
}

std::vector<ColumnPlan> CuspColumns() {
  return {{"House",         CellKind::Bold,    46, 0},
          {"Degree",        CellKind::Degree,  82, 0},
          {"Sign Lord",     CellKind::Lord,    62, 2},
          {"Star Lord",     CellKind::Lord,    62, 0},
          {"Sub Lord",      CellKind::Lord,    86, 0, true},
          {"Sub Sub Lord",  CellKind::Lord,    84, 1},
          {"Nakshatra",     CellKind::Text,   104, 4},
          {"Pada",          CellKind::Text,    40, 5},
          {"Planet(s) Sig", CellKind::Chips,  164, 0}};
}
// clang-format on

// The marks behind a planet's name, from the last columns of its row.
QStringList MarksOf(const QModelIndex& index) {
  QStringList marks;
  for (const chart::PlanetColumn column :
       {chart::PlanetColumn::R, chart::PlanetColumn::C, chart::PlanetColumn::DbEx}) {
    const QString mark = index.siblingAtColumn(static_cast<int>(column)).data().toString();
    if (!mark.isEmpty()) {
      marks << mark;
    }
  }
  return marks;
}

}  // namespace

ChartPage::ChartPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      rashi_(new ChartView("rashiChart", kLeastSide)),
      chalit_(new ChartView("chalitChart", kLeastSide)),
      planets_(new CatalogueTable(document, "PlanetTable")),
      cusps_(new CatalogueTable(document, "CuspTable")),
      ruling_(new CatalogueTable(document, "RulingPlanets")),
      birth_(new BirthPanel(document)),
      style_(new Segments(
          {{"styleNorth", tr("North")}, {"styleEast", tr("East")}, {"styleSouth", tr("South")}})),
      whichChart_(new Segments({{"showRashi", tr("Rashi")}, {"showChalit", tr("Chalit")}})),
      whichTable_(new Segments({{"showPlanets", tr("Planets")}, {"showCusps", tr("Cusps")}})),
      whose_(new Segments({{"rulingOfBirth", tr("At birth")}, {"rulingOfNow", tr("Now")}})),
      allColumns_(MakeButton("allColumns", tr("All columns"))),
      rashiTitle_(SmallTitle(tr("Rashi"))),
      chalitTitle_(SmallTitle(tr("Chalit"))) {
  PlanTables();
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->setSpacing(space::kM + 2);
  layout->addWidget(charts_ = LayOutCharts());
  layout->addWidget(LayOutTables(), 1);
  layout->addWidget(side_ = LayOutSide());
  setMinimumSize(1, 1);
  Connect();
}

void ChartPage::PlanTables() {
  planets_->KeepOrder();
  cusps_->KeepOrder();
  ruling_->KeepOrder();
  planets_->SetPlan(PlanetColumns()).Cells().SetMarks(MarksOf);
  cusps_->SetPlan(CuspColumns()).Cells().SetHouses([this](const QString& code) {
    const auto row = chart::RowOfCode(Model(), Typed(code));
    return row ? Shown(chart::HouseList(Model(), *row)) : QString();
  });
  ruling_->View().setFont(Theme::Text(type::kSmall));
  ruling_->SetPlan({{"Description", CellKind::Text, 98, 0}, {"Planet", CellKind::Chip, 84, 0}});
  ruling_->View().horizontalHeader()->hide();
}

QWidget* ChartPage::LayOutCharts() {
  auto* part = new QWidget;
  auto* head = new QHBoxLayout;
  head->setSpacing(space::kXs);
  head->addWidget(rashiTitle_);
  head->addWidget(whichChart_);
  head->addStretch(1);
  head->addWidget(style_);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addWidget(rashi_);
  layout->addWidget(chalitTitle_);
  layout->addWidget(chalit_);
  layout->addStretch(1);
  return part;
}

QWidget* ChartPage::LayOutTables() {
  allColumns_->setFlat(true);
  allColumns_->setCheckable(true);
  allColumns_->setIcon(Icon("columns"));
  allColumns_->setFixedHeight(height::kSmallField);
  BindKeys(*allColumns_, KeysOf("Horoscope", "allColumns"));
  auto* head = new QHBoxLayout;
  head->setSpacing(space::kXs);
  head->addWidget(whichTable_);
  head->addStretch(1);
  planets_->TitleLine().addWidget(allColumns_);
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addWidget(planets_);
  layout->addWidget(cusps_, 1);
  return part;
}

QWidget* ChartPage::LayOutSide() {
  ruling_->TitleLine().addWidget(whose_);
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kS);
  layout->addWidget(ruling_);
  layout->addWidget(birth_, 1);
  return part;
}

void ChartPage::Connect() {
  connect(whose_, &Segments::ChosenChanged, this, &ChartPage::ShowRulingPlanets);
  connect(style_, &Segments::ChosenChanged, this, [this](int part) {
    if (Document().Style() != kStyleOrder.at(static_cast<std::size_t>(part))) {
      Document().SetStyle(kStyleOrder.at(static_cast<std::size_t>(part)));
    }
  });
  connect(whichChart_, &Segments::ChosenChanged, this, &ChartPage::Arrange);
  connect(whichTable_, &Segments::ChosenChanged, this, &ChartPage::Arrange);
  connect(allColumns_, &QPushButton::toggled, this, &ChartPage::ShowAllColumns);
  for (CatalogueTable* table : {planets_, cusps_, ruling_}) {
    connect(table, &CatalogueTable::PlanetActivated, this, &HoroscopePage::PlanetActivated);
  }
  for (ChartView* chart : {rashi_, chalit_}) {
    connect(chart, &ChartView::CodeActivated, this, [this](const QString& code) {
      if (const auto row = PlanetOfText(Model(), code)) {
        emit PlanetActivated(*row);
      }
    });
    connect(chart, &ChartView::CodeClicked, &Document(), &HoroscopeDocument::ChoosePlanet);
    connect(&Document(), &HoroscopeDocument::PlanetChosen, chart, &ChartView::SetChosen);
  }
}

void ChartPage::ShowAllColumns(bool all) {
  planets_->Plan()->ShowAll(all);
  cusps_->Plan()->ShowAll(all);
}

void ChartPage::ShowModel() {
  const report::ChartCells cells = report::BuildChartCells(Model());
  const char style = Document().Style();
  rashi_->SetPicture(report::RashiPicture(cells, style));
  chalit_->SetPicture(report::ChalitPicture(cells, style));
  style_->Choose(style == 'N' ? 0 : style == 'E' ? 1 : 2);
  planets_->ShowModel();
  cusps_->ShowModel();
  ShowRulingPlanets();
  birth_->ShowModel();
  Arrange();
}

void ChartPage::ShowRulingPlanets() {
  const bool now = whose_->Chosen() == 1;
  ruling_->View().setAccessibleName(now ? tr("%1 now").arg(ruling_->Title().text())
                                        : ruling_->Title().text());
  if (now) {
    ruling_->ShowTable(Document().RulingPlanetsNow());
  } else {
    ruling_->ShowModel();
  }
}

bool ChartPage::ShowsBirth() const { return isVisible() && birth_->isVisible(); }

void ChartPage::resizeEvent(QResizeEvent* event) {
  HoroscopePage::resizeEvent(event);
  Arrange();
}

void ChartPage::Arrange() {
  const bool one = width() < Scaled(kNarrowWidth) || height() < Scaled(kNarrowHeight);
  const int room = height() - 2 * space::kXs;
  const int title = rashiTitle_->minimumHeight();
  const double part = one ? kOneChartPart : kChartPart;
  const int high = one ? room - title : (room - 2 * title - space::kXs) / 2;
  const int side = std::max(kLeastSide, std::min(high, static_cast<int>(width() * part)));
  ArrangeCharts(side, one);
  ArrangeTables(one);
  side_->setFixedWidth(std::clamp(static_cast<int>(width() * kSidePart), Scaled(kLeastSideWidth),
                                  Scaled(kMostSideWidth)));
  side_->setVisible(width() >= Scaled(kRoomForSide));
}

void ChartPage::ArrangeCharts(int side, bool one) {
  charts_->setFixedWidth(std::max(
      side, one ? style_->sizeHint().width() + space::kXs + whichChart_->sizeHint().width() : 0));
  rashi_->setFixedSize(side, side);
  chalit_->setFixedSize(side, side);
  whichChart_->setVisible(one);
  rashiTitle_->setVisible(!one);
  chalitTitle_->setVisible(!one);
  rashi_->setVisible(!one || whichChart_->Chosen() == 0);
  chalit_->setVisible(!one || whichChart_->Chosen() == 1);
}

// All rows of both tables are equally high; the cusps take what is left over.
void ChartPage::ArrangeTables(bool one) {
  const int planets = static_cast<int>(planets_->View().Table().Rows.size());
  const int cusps = static_cast<int>(cusps_->View().Table().Rows.size());
  whichTable_->setVisible(one);
  planets_->setVisible(!one || whichTable_->Chosen() == 0);
  cusps_->setVisible(!one || whichTable_->Chosen() == 1);
  if (one) {
    planets_->setMinimumHeight(0);
    planets_->setMaximumHeight(QWIDGETSIZE_MAX);
  } else if (planets + cusps > 0) {
    const int heads = planets_->HeightOfHead() + cusps_->HeightOfHead();
    const int row = std::clamp((height() - 2 * space::kXs - heads) / (planets + cusps), 1,
                               Scaled(height::kMostRow));
    planets_->setFixedHeight(planets_->HeightOfHead() + planets * row);
  }
  const int rulers = static_cast<int>(ruling_->View().Table().Rows.size());
  ruling_->setFixedHeight(ruling_->HeightOfHead() + rulers * Scaled(24));
}

}  // namespace orvex::ui
