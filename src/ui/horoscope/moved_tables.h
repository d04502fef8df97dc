// What a moved birth or place changes: the old and the new lords of the Ascendant, cusps, planets
// and dashas.
#pragma once

#include <QWidget>
#include <vector>

#include "horoscope/recalculation.h"
#include "ui/base/workplace.h"

class QLabel;
class QStackedWidget;

namespace orvex::ui {

class Segments;
class TablePlan;
class TableView;

class MovedTables final : public QWidget {
  Q_OBJECT

 public:
  explicit MovedTables(Workplace& place);

  // Shows a result; what differs from that of the birth is marked. Without rows the old and new
  // lords are not in sight.
  void ShowMoved(const horoscope::Recalculation& moved, const horoscope::Recalculation& ofBirth,
                 const core::Table& lords);

 private:
  void LayOut();
  QWidget* LayOutTables();
  QWidget* LayOutDashas();
  void PlanTables(Workplace& place);

  TableView* lords_;
  Segments* shown_;  // which of the two tables
  QStackedWidget* tables_;
  TableView* cusps_;
  TableView* planets_;
  TableView* dashas_;
  QLabel* balance_;
  std::vector<TablePlan*> plans_;
};

}  // namespace orvex::ui
