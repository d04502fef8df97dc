// The one list of all tables and captions of a horoscope. Windows, interchange and tests read it: a
// new analysis is one file, one line here and one test.
#pragma once

#include <string>
#include <vector>

#include "chart/horoscope_model.h"

namespace orvex::horoscope {

struct TableEntry {
  const char* Name;
  const char* Title;
  const char* Page;  // the page of the window on which the table stands
  const core::Table& (*Of)(const chart::HoroscopeModel&);
};

struct CaptionEntry {
  const char* Name;
  std::string chart::HoroscopeCaptions::*Text;
};

const std::vector<TableEntry>& HoroscopeTables();
const std::vector<CaptionEntry>& HoroscopeCaptionTexts();

}  // namespace orvex::horoscope
