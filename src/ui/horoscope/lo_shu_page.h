// The Lo Shu grid with its planes and the meaning of its numbers.
#pragma once

#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

class LoShuPage final : public TablesPage {
  Q_OBJECT

 public:
  explicit LoShuPage(HoroscopeDocument& document);
};

}  // namespace orvex::ui
