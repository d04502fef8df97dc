// A page of captions and tables that the catalogue names.
#pragma once

#include <string>
#include <vector>

#include "ui/base/layout_memory.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QLabel;
class QSplitter;

namespace orvex::ui {

struct PagePlan {
  const char* Name;                              // object name; its splitters are named after it
  std::vector<const char*> Captions;             // lines above the tables
  std::vector<std::vector<const char*>> Tables;  // rows of tables side by side
};

class TablesPage : public HoroscopePage {
  Q_OBJECT

 public:
  TablesPage(HoroscopeDocument& document, const PagePlan& plan);

  void ShowModel() override;

  // std::out_of_range for a name that the plan does not have.
  CatalogueTable& TableOf(const char* name);

 private:
  void OfferAllColumns(std::size_t inFirstRow);
  QSplitter* MakeRow(const PagePlan& plan, std::size_t row);

  std::vector<std::pair<QLabel*, std::string chart::HoroscopeCaptions::*>> captions_;
  std::vector<CatalogueTable*> tables_;
};

// The caption of that name. std::out_of_range for a name that the catalogue does not have.
std::string chart::HoroscopeCaptions::*CaptionOf(const std::string& name);

}  // namespace orvex::ui
