// What the page of the month is made for, in one line: the month and the way to others, time of day
// and city, the views, and what can be done with it.
#pragma once

#include <QWidget>

#include "transit/monthly_grid.h"

class QBoxLayout;
class QPushButton;

namespace orvex::ui {

class Segments;
class TimeEdit;

enum class MonthView { Both, Table, Graph, Changes };

class MonthBar final : public QWidget {
  Q_OBJECT

 public:
  MonthBar();

  void ShowMonth(const transit::MonthGrid& month);
  void ShowCity(const std::string& name);

  // The time of day that is wanted; nothing while the text is none.
  TimeEdit& Time() { return *time_; }

  // Marks a view without turning to it, and whether grid and graph have room beside each other.
  void MarkView(MonthView view);
  void OfferBoth(bool room);

  QSize minimumSizeHint() const override;

 signals:
  void MonthWanted(int month, int year);
  void TodayWanted();
  void CityWanted();
  void ViewWanted(MonthView view);
  void FindWanted();
  void CalendarWanted();
  void PrintWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QWidget* BuildMonths();
  QWidget* BuildViews();
  void Connect();
  void TakeFonts();
  void GoTo(const std::string& tag);
  void OpenPicker();

  QPushButton* previous_;
  QPushButton* month_;
  QPushButton* next_;
  QPushButton* today_;
  TimeEdit* time_;
  QPushButton* city_;
  Segments* views_;
  QPushButton* find_;
  QPushButton* calendar_;
  QPushButton* print_;
  QWidget* left_;
  QWidget* right_;
  QBoxLayout* line_;
  std::string nextTag_;
  std::string previousTag_;
  std::string tag_;  // of the month in sight
};

}  // namespace orvex::ui
