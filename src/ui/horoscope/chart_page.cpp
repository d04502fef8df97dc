#include "ui/horoscope/chart_page.h"

#include <QHBoxLayout>
#include <QSplitter>

#include "ui/base/theme.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

ChartPage::ChartPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      rashi_(new ChartView("rashiChart")),
      chalit_(new ChartView("chalitChart")),
      planets_(new CatalogueTable(document, "PlanetTable")),
      cusps_(new CatalogueTable(document, "CuspTable")),
      ruling_(new CatalogueTable(document, "RulingPlanets")) {
  auto* halves = new QSplitter(Qt::Horizontal);
  halves->setObjectName("chartHalves");
  halves->addWidget(LayOutCharts());
  halves->addWidget(LayOutTables());
  halves->setStretchFactor(0, 2);
  halves->setStretchFactor(1, 5);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(halves);
  Remember(document.Place().Layout, *halves);
  Connect();
}

QSplitter* ChartPage::LayOutCharts() {
  auto* charts = new QSplitter(Qt::Vertical);
  charts->setObjectName("charts");
  charts->addWidget(rashi_);
  charts->addWidget(chalit_);
  Remember(Document().Place().Layout, *charts);
  return charts;
}

QSplitter* ChartPage::LayOutTables() {
  auto* lower = new QSplitter(Qt::Horizontal);
  lower->setObjectName("chartLowerTables");
  lower->addWidget(cusps_);
  lower->addWidget(ruling_);
  lower->setStretchFactor(0, 3);
  lower->setStretchFactor(1, 1);
  Remember(Document().Place().Layout, *lower);
  auto* tables = new QSplitter(Qt::Vertical);
  tables->setObjectName("chartTables");
  tables->addWidget(planets_);
  tables->addWidget(lower);
  Remember(Document().Place().Layout, *tables);
  return tables;
}

void ChartPage::Connect() {
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
  for (CatalogueTable* table : {planets_, cusps_, ruling_}) {
    table->ShowModel();
  }
}

}  // namespace orvex::ui
