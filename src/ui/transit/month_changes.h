// When within the days of a month the planets change sign, star or sub and turn. It is computed
// when it comes into sight.
#pragma once

#include "ui/base/table_view.h"
#include "ui/base/workplace.h"

namespace orvex::ui {

class MonthChanges final : public TableView {
  Q_OBJECT

 public:
  explicit MonthChanges(Workplace& place);

  // A month of the calendar, 1 to 12, by the clock of a city; hours east of Greenwich.
  void SetMonth(int month, int year, float zoneHours);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Fill();

  Workplace& place_;
  int month_ = 0;  // 0: no month to be shown
  int year_ = 0;
  float zoneHours_ = 0;
};

}  // namespace orvex::ui
