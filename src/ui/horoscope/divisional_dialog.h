// Navamsha and dashamsha side by side.
#pragma once

#include <QDialog>

#include "chart/horoscope_model.h"

namespace orvex::ui {

class DivisionalDialog final : public QDialog {
  Q_OBJECT

 public:
  // In the style 'N', 'E' or 'S'. The Escape key closes it.
  DivisionalDialog(const chart::HoroscopeModel& model, char style, QWidget* parent);
};

}  // namespace orvex::ui
