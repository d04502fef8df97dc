// The Ashtakavarga table: bindus of the seven planets in the twelve signs.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "chart/horoscope_model.h"

namespace orvex::vedic {

// The row's name, the signs 1 to 12, the row's total.
enum class AshtakavargaColumn { Rashi, FirstSign, LastSign = FirstSign + 11, Total };

// The rows: the houses of the signs, the planets, the totals of the signs. The tag of a planet's
// row is its code.
enum class AshtakavargaRow { House, FirstPlanet, LastPlanet = FirstPlanet + 6, Total };

// Bindus by sign, 1 to 12; place 0 is unused.
using SourceBindus = std::array<int, chart::kHouses + 1>;

// What one source gives by its entry, code and flags joined with "*". The source is found in the
// planets of the rashi chart, "LA" in the first house; one that is not found gives nothing.
SourceBindus AddSourceBindus(const chart::HoroscopeModel& model, const std::string& entry,
                             const std::string& sourceCode);

// Writes the table anew from the house table and the aspect grid. A house that the grid lacks
// stays "0".
void ComputeAshtakavarga(chart::HoroscopeModel& model);

}  // namespace orvex::vedic
