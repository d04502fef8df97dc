// The first page: the two charts beside the tables of planets, cusps and ruling planets.
#pragma once

#include "ui/base/chart_view.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QRadioButton;
class QSplitter;

namespace orvex::ui {

class ChartPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit ChartPage(HoroscopeDocument& document);

  void ShowModel() override;

  // The ruling planets of the birth, as reports have them.
  void ShowRulingPlanetsOfBirth();

 private:
  QSplitter* LayOutCharts();
  QSplitter* LayOutTables();
  QWidget* LayOutRulingPlanets();
  void Connect();
  void ShowRulingPlanets();

  ChartView* rashi_;
  ChartView* chalit_;
  CatalogueTable* planets_;
  CatalogueTable* cusps_;
  CatalogueTable* ruling_;
  QRadioButton* ofBirth_;
  QRadioButton* ofNow_;
};

}  // namespace orvex::ui
