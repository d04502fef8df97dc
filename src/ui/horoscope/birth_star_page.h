// What the Moon's star gives, and the quarters of all stars.
#pragma once

#include <vector>

#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QFormLayout;
class QLabel;

namespace orvex::ui {

class BirthStarPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit BirthStarPage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QFormLayout* LayOutFacts();
  void SelectQuarterOfMoon();

  std::vector<QLabel*> facts_;
  CatalogueTable* stars_;
};

}  // namespace orvex::ui
