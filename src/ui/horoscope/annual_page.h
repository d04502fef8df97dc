// The annual chart of a year of life.
#pragma once

#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_chart.h"
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
  HoroscopeChart* chart_;
  CatalogueTable* houses_;
};

}  // namespace orvex::ui
