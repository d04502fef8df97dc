// What a practice without clients shows: three steps to the first horoscope.
#pragma once

#include <QWidget>

#include "ui/base/workplace.h"

class QAction;
class QLabel;
class QPushButton;

namespace orvex::ui {

class FirstRun final : public QWidget {
  Q_OBJECT

 public:
  FirstRun(Workplace& place, QAction& addClient, QWidget* parent = nullptr);

  // Shows the city of the settings.
  void ShowCity();

 signals:
  // Another city was saved in the settings.
  void CityChanged();

 private:
  void Build(QAction& addClient);
  void ChooseCity();

  Workplace& place_;
  QLabel* city_;
  QPushButton* chooseCity_;
  QPushButton* addClient_;
};

}  // namespace orvex::ui
