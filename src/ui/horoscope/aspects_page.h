// The aspects between planets, all or by their kind, and those to the cusps.
#pragma once

#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QSplitter;

namespace orvex::ui {

class AspectsPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit AspectsPage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QHBoxLayout* LayOutHead();
  QSplitter* LayOutTables();
  void Connect();

  QComboBox* filter_;
  QLabel* summary_;
  CatalogueTable* planets_;
  CatalogueTable* cusps_;
};

}  // namespace orvex::ui
