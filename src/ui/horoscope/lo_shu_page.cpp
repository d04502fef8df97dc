#include "ui/horoscope/lo_shu_page.h"

#include <QHeaderView>

namespace orvex::ui {

LoShuPage::LoShuPage(HoroscopeDocument& document)
    : TablesPage(document, {"loShu",
                            {"LoShuTitle", "Numerology"},
                            {{"LoShuGrid", "LoShuAnalysis"}, {"LoShuPlanes"}}}) {
  CatalogueTable& grid = TableOf("LoShuGrid");
  grid.KeepOrder();
  grid.View().horizontalHeader()->hide();
  grid.View().setShowGrid(true);
  grid.View().setSelectionMode(QAbstractItemView::NoSelection);
}

}  // namespace orvex::ui
