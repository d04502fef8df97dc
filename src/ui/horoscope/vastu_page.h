// The plan of the 32 door pads with the impacts of hard aspects on it.
#pragma once

#include <array>

#include "ui/base/shown_page.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"
#include "ui/horoscope/vastu_side.h"

class QSplitter;

namespace orvex::ui {

class VastuPage final : public HoroscopePage, public PrintsItself {
  Q_OBJECT

 public:
  explicit VastuPage(HoroscopeDocument& document);

  void ShowModel() override;

  // The pads of the plan as a list, then the tables in sight.
  std::vector<PageBlock> PrintedBlocks() const override;

 private:
  QWidget* LayOutPlan();
  QSplitter* LayOutTables();

  std::array<VastuSide*, 4> sides_;  // north, east, south, west
  CatalogueTable* impacts_;
  CatalogueTable* hits_;
};

}  // namespace orvex::ui
