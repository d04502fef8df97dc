// All that an open horoscope knows of one planet: three pairs of facts a row for a dialog, one
// under the other for the side of a window.
#pragma once

#include <QWidget>

#include "transit/planet_sheet.h"

class QFormLayout;

namespace orvex::ui {

class TableView;

enum class SheetShape { Wide, Tall };

class PlanetSheetView final : public QWidget {
  Q_OBJECT

 public:
  PlanetSheetView(const transit::PlanetSheet& sheet, SheetShape shape);

 private:
  static TableView* MakeFacts(const transit::PlanetSheet& sheet);
  static QFormLayout* LayOutFacts(const transit::PlanetSheet& sheet);
  static QWidget* MakeLists(const transit::PlanetSheet& sheet, SheetShape shape);
};

}  // namespace orvex::ui
