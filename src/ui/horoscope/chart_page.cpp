#include "ui/horoscope/chart_page.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QSplitter>

#include "ui/base/theme.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

constexpr int kRulingWidth = 26 * kGrid;  // both columns without a bar

}  // namespace

ChartPage::ChartPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      rashi_(new ChartView("rashiChart")),
      chalit_(new ChartView("chalitChart")),
      planets_(new CatalogueTable(document, "PlanetTable")),
      cusps_(new CatalogueTable(document, "CuspTable")),
      ruling_(new CatalogueTable(document, "RulingPlanets")),
      ofBirth_(new QRadioButton(tr("At &birth"))),
      ofNow_(new QRadioButton(tr("&Now"))) {
  ofBirth_->setObjectName("rulingOfBirth");
  ofNow_->setObjectName("rulingOfNow");
  ofBirth_->setChecked(true);
  planets_->View().FreezeFirstColumn();
  auto* halves = new QSplitter(Qt::Horizontal);
  halves->setObjectName("chartHalves");
  halves->addWidget(LayOutCharts());
  halves->addWidget(LayOutTables());
  halves->setStretchFactor(0, 2);
  halves->setStretchFactor(1, 5);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(halves);
  document.Place().Layout.Remember(*halves);
  Connect();
}

QSplitter* ChartPage::LayOutCharts() {
  auto* charts = new QSplitter(Qt::Vertical);
  charts->setObjectName("charts");
  charts->addWidget(rashi_);
  charts->addWidget(chalit_);
  Document().Place().Layout.Remember(*charts);
  return charts;
}

QSplitter* ChartPage::LayOutTables() {
  auto* upper = new QSplitter(Qt::Horizontal);
  upper->setObjectName("chartUpperTables");
  upper->addWidget(planets_);
  upper->addWidget(LayOutRulingPlanets());
  upper->setStretchFactor(0, 1);
  upper->setStretchFactor(1, 0);
  Document().Place().Layout.Remember(*upper);
  auto* tables = new QSplitter(Qt::Vertical);
  tables->setObjectName("chartTables");
  tables->addWidget(upper);
  tables->addWidget(cusps_);
  Document().Place().Layout.Remember(*tables);
  return tables;
}

QWidget* ChartPage::LayOutRulingPlanets() {
  auto* part = new QWidget;
  part->setMinimumWidth(kRulingWidth);
  auto* choice = new QHBoxLayout;
  choice->addWidget(ofBirth_);
  choice->addWidget(ofNow_);
  choice->addStretch(1);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(ruling_, 1);
  layout->addLayout(choice);
  return part;
}

void ChartPage::Connect() {
  connect(ofNow_, &QRadioButton::toggled, this, &ChartPage::ShowRulingPlanets);
  for (CatalogueTable* table : {planets_, cusps_, ruling_}) {
    connect(table, &CatalogueTable::PlanetActivated, this, &HoroscopePage::PlanetActivated);
  }
  for (ChartView* chart : {rashi_, chalit_}) {
    connect(chart, &ChartView::CodeActivated, this, [this](const QString& code) {
      if (const auto row = PlanetOfText(Model(), code)) {
        emit PlanetActivated(*row);
      }
    });
  }
}

void ChartPage::ShowModel() {
  const report::ChartCells cells = report::BuildChartCells(Model());
  rashi_->SetPicture(report::RashiPicture(cells, Document().Style()));
  chalit_->SetPicture(report::ChalitPicture(cells, Document().Style()));
  planets_->ShowModel();
  cusps_->ShowModel();
  ShowRulingPlanets();
}

void ChartPage::ShowRulingPlanets() {
  if (ofNow_->isChecked()) {
    ruling_->ShowTable(Document().RulingPlanetsNow());
  } else {
    ruling_->ShowModel();
  }
}

void ChartPage::ShowRulingPlanetsOfBirth() { ofBirth_->setChecked(true); }

}  // namespace orvex::ui
