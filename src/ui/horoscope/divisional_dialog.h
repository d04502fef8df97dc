// Navamsha and dashamsha side by side.
#pragma once

#include <QDialog>

#include "horoscope/create_horoscope.h"

namespace orvex::ui {

class DivisionalDialog final : public QDialog {
  Q_OBJECT

 public:
  // Of the birth, whatever house is rotated to first. In the style 'N', 'E' or 'S'. The Escape key
  // closes it.
  DivisionalDialog(const horoscope::OpenedHoroscope& opened, char style, QWidget* parent);
};

}  // namespace orvex::ui
