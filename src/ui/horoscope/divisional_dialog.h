// Navamsha and dashamsha side by side.
#pragma once

#include <QDialog>

#include "horoscope/create_horoscope.h"

namespace orvex::ui {

class ChartView;

class DivisionalDialog final : public QDialog {
  Q_OBJECT

 public:
  // Of the birth, whatever house is rotated to first. In the style 'N', 'E' or 'S'. The Escape key
  // closes it.
  DivisionalDialog(const horoscope::OpenedHoroscope& opened, char style, QWidget* parent);

  // Shows the charts anew, in another style.
  void ShowModel(const horoscope::OpenedHoroscope& opened, char style);

 private:
  ChartView* navamsha_;
  ChartView* dashamsha_;
};

}  // namespace orvex::ui
