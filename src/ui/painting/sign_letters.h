// The two letters of each sign, Aries first.
#pragma once

#include <array>

namespace orvex::ui {

inline constexpr std::array<const char*, 12> kSignLetters = {"Ar", "Ta", "Ge", "Cn", "Le", "Vi",
                                                             "Li", "Sc", "Sg", "Cp", "Aq", "Pi"};

}  // namespace orvex::ui
