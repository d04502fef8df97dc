// A place in the zodiac as it is read: degree and minute in its sign, and the letters of signs.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace orvex::chart {

// The two letters of each sign, Aries first.
inline constexpr std::array<const char*, 12> kSignLetters = {"Ar", "Ta", "Ge", "Cn", "Le", "Vi",
                                                             "Li", "Sc", "Sg", "Cp", "Aq", "Pi"};

struct SignDegree {
  std::string Figures;  // "18°41'"; "7.56" where the stored text is no whole minute
  std::string Sign;     // the sign's two letters, "Ta"
};

// Of a degree of the circle, from 0 to below 360 with up to two decimals, as tables carry it;
// nothing for other texts.
std::optional<SignDegree> SignDegreeOf(const std::string& degree);

}  // namespace orvex::chart
