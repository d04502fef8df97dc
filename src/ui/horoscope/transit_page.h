// The planets of the present moment beside those of the birth.
#pragma once

#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

class TransitPage final : public TablesPage {
  Q_OBJECT

 public:
  explicit TransitPage(HoroscopeDocument& document);
};

}  // namespace orvex::ui
