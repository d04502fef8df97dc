// The four lists of periods, each opened from the one above it, and their summaries.
#pragma once

#include <array>

#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QSplitter;

namespace orvex::ui {

class DashaPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit DashaPage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QSplitter* LayOutLists();
  QSplitter* LayOutSummaries();
  void Connect(std::size_t level);
  void OpenLater(std::size_t level, std::size_t row);

  std::array<CatalogueTable*, 4> lists_;
  CatalogueTable* periods_;
  CatalogueTable* houses_;
  bool showing_ = false;  // the model is being shown: a row that becomes current was not picked
};

}  // namespace orvex::ui
