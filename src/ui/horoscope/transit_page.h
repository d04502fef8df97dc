// The planets of the present moment beside those of the birth.
#pragma once

#include <optional>

#include "transit/transit_position.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

class TransitPage final : public TablesPage {
  Q_OBJECT

 public:
  explicit TransitPage(HoroscopeDocument& document);

 private:
  void ShowHours(std::optional<transit::Planet> planet);
};

}  // namespace orvex::ui
