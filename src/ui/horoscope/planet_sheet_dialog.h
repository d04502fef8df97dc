// The sheet of a planet before a window that has no room for it at its side.
#pragma once

#include <QDialog>

#include "transit/planet_sheet.h"

namespace orvex::ui {

class PlanetSheetDialog final : public QDialog {
  Q_OBJECT

 public:
  PlanetSheetDialog(const transit::PlanetSheet& sheet, QWidget* parent);
};

}  // namespace orvex::ui
