// The sheet of a planet: all that an open horoscope knows of it.
#pragma once

#include <QDialog>

#include "transit/planet_sheet.h"

namespace orvex::ui {

class TableView;

class PlanetSheetDialog final : public QDialog {
  Q_OBJECT

 public:
  PlanetSheetDialog(const transit::PlanetSheet& sheet, QWidget* parent);

 private:
  TableView* MakeFacts(const transit::PlanetSheet& sheet);
  QWidget* MakeLists(const transit::PlanetSheet& sheet);
};

}  // namespace orvex::ui
