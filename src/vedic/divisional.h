// The divisional charts of an open horoscope: navamsha (D9) and dashamsha (D10).
#pragma once

#include <array>
#include <string>

#include "chart/rotation.h"
#include "chart/south_grid.h"

namespace orvex::vedic {

enum class Division { Navamsha, Dashamsha };

// One division, laid out from the ascendant's sign in it.
struct DivisionChart {
  std::array<int, 13> HouseSigns{};   // sign in house 1 to 12; place 0 is 0
  std::array<std::string, 13> North;  // by house: sign number, then codes
  std::array<std::string, 13> East;   // by sign: codes, "Asc " before those of the ascendant
  std::array<std::array<chart::SouthCell, 4>, 4> South;
};

// The sign in a division for a sign 1 to 12 and a degree within it, looked up in single precision
// with both bounds of a row counted in. Where no row holds the degree, the row `row` counts, which
// is set to the row used.
int DivisionSign(Division division, int sign, float degree, std::size_t& row);

// The chart of a division, from the tables of the birth: a rotation does not move it. Planets
// without a sign or degree are left out.
DivisionChart BuildDivision(const chart::BirthTables& birth, Division division);

}  // namespace orvex::vedic
