// The sheet of a planet at the side of a wide window, beside every page.
#pragma once

#include <QWidget>
#include <optional>

#include "ui/horoscope/horoscope_document.h"

class QScrollArea;

namespace orvex::ui {

class PlanetSheetPanel final : public QWidget {
  Q_OBJECT

 public:
  // Hidden until a planet is shown. The Escape key hides it again.
  explicit PlanetSheetPanel(HoroscopeDocument& document);

  // A row of the planet table; its sheet follows the horoscope as that is turned.
  void ShowPlanet(std::size_t row);
  void ShowModel();

 private:
  HoroscopeDocument& document_;
  QScrollArea* room_;
  std::optional<std::size_t> row_;
};

}  // namespace orvex::ui
