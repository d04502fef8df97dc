#include "ui/horoscope/chart_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "chart/horoscope_model.h"
#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/segments.h"
#include "ui/base/theme.h"
#include "ui/horoscope/all_columns.h"
#include "ui/horoscope/birth_panel.h"
#include "ui/horoscope/chart_menu.h"
#include "ui/horoscope/ruling_line.h"

namespace orvex::ui {

namespace {

// Pixels at the usual text size.
constexpr int kLeastSideWidth = 200;
constexpr int kMostSideWidth = 250;
constexpr double kSidePart = 0.168;  // of the width
constexpr int kNarrowWidth = 900;    // below, one chart and one table
constexpr int kNarrowHeight = 540;
constexpr int kRoomForSide = 1100;  // of the window
constexpr int kLeastSide = 160;
constexpr double kChartPart = 0.232;  // of the width
constexpr double kOneChartPart = 0.30;
constexpr std::array<char, 3> kStyleOrder = {'N', 'E', 'S'};

QLabel* SmallTitle(const QString& text) {
  QLabel* title = MakeHeading(text);
  title->setMinimumHeight(height::kSmallField);
  return title;
}

}  // namespace

ChartPage::ChartPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      rashi_(new ChartView("rashiChart", kLeastSide)),
      chalit_(new ChartView("chalitChart", kLeastSide)),
      planets_(new CatalogueTable(document, "PlanetTable")),
      cusps_(new CatalogueTable(document, "CuspTable")),
      ruling_(new CatalogueTable(document, "RulingPlanets")),
      rulingLine_(new RulingLine(document)),
      birth_(new BirthPanel(document)),
      style_(new Segments(
          {{"styleNorth", tr("North")}, {"styleEast", tr("East")}, {"styleSouth", tr("South")}})),
      whichChart_(new Segments({{"showRashi", tr("Rashi")}, {"showChalit", tr("Chalit")}})),
      whichTable_(new Segments({{"showPlanets", tr("Planets")}, {"showCusps", tr("Cusps")}})),
      whose_(new Segments({{"rulingOfBirth", tr("At birth")}, {"rulingOfNow", tr("Now")}})),
      allColumns_(MakeAllColumnsButton({planets_, cusps_})),
      rashiTitle_(SmallTitle(tr("Rashi"))),
      chalitTitle_(SmallTitle(tr("Chalit"))) {
  PlanTables();
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kS, space::kXs);
  layout->setSpacing(space::kM);
  layout->addLayout(LayOutMiddle(), 1);
  layout->addWidget(side_ = LayOutSide());
  setMinimumSize(1, 1);
  Connect();
}

void ChartPage::PlanTables() {
  planets_->KeepOrder();
  cusps_->KeepOrder();
  ruling_->KeepOrder();
  planets_->PlanAsUsual();
  cusps_->PlanAsUsual().Cells().SetHouses([this](const QString& code) {
    const auto row = chart::RowOfCode(Model(), Typed(code));
    return row ? Shown(chart::HouseList(Model(), *row)) : QString();
  });
  ruling_->View().setFont(Theme::Text(type::kSmall));
  ruling_->SetPlan({{"Description", CellKind::Text, 102, 0}, {"Planet", CellKind::Chip, 84, 0}});
  ruling_->View().horizontalHeader()->hide();
}

// The charts beside the tables, and under both what has no room at the side.
QVBoxLayout* ChartPage::LayOutMiddle() {
  auto* upper = new QHBoxLayout;
  upper->setSpacing(space::kM);
  upper->addWidget(charts_ = LayOutCharts());
  upper->addWidget(LayOutTables(), 1);
  rulingFoot_ = new QHBoxLayout;
  rulingFoot_->setSpacing(space::kM);
  rulingFoot_->addWidget(rulingLine_, 1);
  auto* middle = new QVBoxLayout;
  middle->setSpacing(space::kXs);
  middle->addLayout(upper, 1);
  middle->addLayout(rulingFoot_);
  return middle;
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
  for (CatalogueTable* table : {planets_, cusps_, ruling_}) {
    connect(table, &CatalogueTable::PlanetActivated, this, &HoroscopePage::PlanetActivated);
  }
  for (ChartView* chart : {rashi_, chalit_}) {
    OfferChartMenu(Document(), *chart);
    connect(chart, &ChartView::CodeActivated, this, [this](const QString& code) {
      if (const auto row = PlanetOfText(Model(), code)) {
        emit PlanetActivated(*row);
      }
    });
    connect(chart, &ChartView::CodeClicked, &Document(), &HoroscopeDocument::ChoosePlanet);
    connect(&Document(), &HoroscopeDocument::PlanetChosen, chart, &ChartView::SetChosen);
  }
}

void ChartPage::ShowModel() {
  const report::ChartCells cells = report::BuildChartCells(Model());
  const char style = Document().Style();
  rashi_->SetPicture(report::RashiPicture(cells, style));
  const report::ChartPicture chalit = report::ChalitPicture(cells, style);
  chalit_->SetPicture(ShowsDegreesInSign() ? report::WithDegreesInSign(chalit) : chalit);
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
  rulingLine_->ShowTable(ruling_->View().Table());
}

bool ChartPage::ShowsBirth() const { return isVisible() && birth_->isVisible(); }

void ChartPage::resizeEvent(QResizeEvent* event) {
  HoroscopePage::resizeEvent(event);
  Arrange();
}

void ChartPage::Arrange() {
  const bool one = width() < Scaled(kNarrowWidth) || height() < Scaled(kNarrowHeight);
  ArrangeRulers();
  const int room = RoomForTables();
  const int title = rashiTitle_->minimumHeight();
  const double part = one ? kOneChartPart : kChartPart;
  const int high = one ? room - title : (room - 2 * title - space::kXs) / 2;
  const int side = std::max(kLeastSide, std::min(high, static_cast<int>(width() * part)));
  ArrangeCharts(side, one);
  ArrangeTables(one);
}

// The ruling planets as a table at the side with the birth, or as one line under the tables. The
// switch between birth and now goes with them.
void ChartPage::ArrangeRulers() {
  const bool beside = window()->width() >= Scaled(kRoomForSide);
  side_->setFixedWidth(std::clamp(static_cast<int>(width() * kSidePart), Scaled(kLeastSideWidth),
                                  Scaled(kMostSideWidth)));
  if (rulersBeside_ == beside) {
    return;
  }
  rulersBeside_ = beside;
  if (beside) {
    ruling_->TitleLine().addWidget(whose_);
  } else {
    rulingFoot_->addWidget(whose_);
  }
  whose_->show();
  side_->setVisible(beside);
  rulingLine_->setVisible(!beside);
}

// The height that charts and tables have, in pixels.
int ChartPage::RoomForTables() const {
  const bool beside = rulersBeside_.value_or(true);
  const int foot = beside ? 0 : rulingFoot_->sizeHint().height() + space::kXs;
  return height() - 2 * space::kXs - foot;
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
    const int row =
        std::clamp((RoomForTables() - heads) / (planets + cusps), 1, Scaled(height::kMostRow));
    planets_->setFixedHeight(planets_->HeightOfHead() + planets * row);
  }
  const int rulers = static_cast<int>(ruling_->View().Table().Rows.size());
  ruling_->setFixedHeight(ruling_->HeightOfHead() + rulers * Scaled(24));
}

}  // namespace orvex::ui
