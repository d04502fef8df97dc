#include "ui/transit/month_changes.h"

#include <utility>

#include "transit/changes.h"
#include "ui/base/export_table.h"

namespace orvex::ui {

MonthChanges::MonthChanges(Workplace& place) : place_(place) {
  setObjectName("changes");
  setAccessibleName(tr("Changes of the month"));
  setSortingEnabled(false);
  OfferExport(place, *this);
}

void MonthChanges::SetMonth(int month, int year, float zoneHours) {
  month_ = month;
  year_ = year;
  zoneHours_ = zoneHours;
  if (isVisible()) {
    Fill();
  }
}

void MonthChanges::showEvent(QShowEvent* event) {
  TableView::showEvent(event);
  Fill();
}

void MonthChanges::Fill() {
  if (const int month = std::exchange(month_, 0); month != 0) {
    SetTable(transit::ChangesOfMonth(place_.Session, month, year_, zoneHours_));
  }
}

}  // namespace orvex::ui
