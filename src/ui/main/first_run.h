// What a practice without clients shows: the steps to the first horoscope, and how clients come in.
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
  FirstRun(Workplace& place, QAction& addClient, QAction& importBirths, QWidget* parent = nullptr);

  // Shows the city of the settings.
  void ShowCity();

 signals:
  // Another city was saved in the settings.
  void CityChanged();

 private:
  void Build(QAction& addClient, QAction& importBirths);
  void ChooseCity();

  Workplace& place_;
  QLabel* city_;
  QPushButton* chooseCity_;
  QPushButton* addClient_;
  QPushButton* import_;
};

}  // namespace orvex::ui
