// The reading to the second as tables: cusps and planets of an instant.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/table.h"
#include "exact/exact_sky.h"
#include "exact/exact_zodiac.h"

namespace orvex::exact {

// Shown in the place of the cusps.
inline constexpr const char* kNoSuchAscendant = "No chart has this Ascendant at this latitude.";

// How far the birth time is moved at most, either way, to find the borders of a cusp's sub.
inline constexpr std::chrono::minutes kLongestMove{30};

enum class ExactCuspColumn {
  House,
  Position,
  Longitude,
  SignLord,
  StarLord,
  SubLord,
  SubSubLord,
  Since,
  Until,
  Stored
};

enum class ExactPlanetColumn {
  Planet,
  R,
  Position,
  Longitude,
  House,
  SignLord,
  StarLord,
  SubLord,
  SubSubLord,
  ToBorder,
  Stored
};

// By how much a birth time may move before a cusp leaves its span of sign, star and sub, in
// seconds: the first that has the present span, 0 or less, and the first that no longer has it. A
// side without a change within the longest move holds nothing.
struct CuspHold {
  std::optional<int> Since;
  std::optional<int> Until;
};

using CuspHolds = std::array<CuspHold, 12>;

// The holds of the twelve cusps of a moment in UT and a place.
CuspHolds HoldsOf(const ExactSky& sky, const ExactZodiac& zodiac, core::DateTime ut,
                  const Place& place);

// The columns of the table of cusps.
std::vector<core::Column> ExactCuspColumns();

// Twelve rows with an empty column "Stored". `holds` is nothing for an Ascendant that is given:
// "Since" and "Until" stay empty.
core::Table BuildExactCusps(const ExactZodiac& zodiac, const astro::Cusps& cusps,
                            const std::optional<CuspHolds>& holds);

// Nine rows with an empty column "Stored". Without cusps the houses stay empty.
core::Table BuildExactPlanets(const ExactSky& sky, const ExactZodiac& zodiac, core::DateTime ut,
                              const std::optional<astro::Cusps>& cusps);

// The house, 1 to 12, whose span from cusp to cusp holds a unit.
int HouseOf(const astro::Cusps& cusps, Units units);

}  // namespace orvex::exact
