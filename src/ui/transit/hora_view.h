// The page of the 24 planetary hours of any date over any city.
#pragma once

#include <QWidget>

#include "panchang/hora.h"
#include "ui/base/workplace.h"

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace orvex::ui {

class DateEdit;
class TablePlan;
class TableView;

// Opens for the user city and today.
class HoraView final : public QWidget {
  Q_OBJECT

 public:
  explicit HoraView(Workplace& place, QWidget* parent = nullptr);

  // Gives the focus to the date.
  void FocusDate();

  // Marks the hora that runs by now, where that is another one.
  void FollowClock();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  TablePlan* PlanHoras(TableView& table);
  void LayOut();
  QHBoxLayout* BuildDates();
  QHBoxLayout* BuildTables();
  QWidget* BuildHalf(const QString& title, QLabel* sun, TableView* table);
  void Connect();
  void CalcHora();
  void ShowRunning();
  std::string StartOfRunning() const;
  void Move(int days);
  void ChangeCity();

  Workplace& place_;
  std::int32_t cityId_;
  core::DateTime shown_;
  panchang::HoraView horas_;
  std::string running_;  // the start of the marked hora, "" for none
  QLabel* caption_;
  QPushButton* previous_;
  DateEdit* date_;
  QPushButton* next_;
  QPushButton* city_;
  QLabel* sunrise_;
  QLabel* sunset_;
  TableView* day_;
  TableView* night_;
  TablePlan* dayPlan_;
  TablePlan* nightPlan_;
};

}  // namespace orvex::ui
