// The annual chart of a year of life.
#pragma once

#include "ui/base/chart_view.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QHBoxLayout;
class QSpinBox;

namespace orvex::ui {

class AnnualPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit AnnualPage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QHBoxLayout* LayOutHead();

  QSpinBox* year_;
  ChartView* chart_;
  CatalogueTable* houses_;
};

}  // namespace orvex::ui
