// The sidereal zodiac of the reading to the second. The library keeps its mode as a state of its
// own, so it is set anew before each position or house.
#pragma once

#include "astro/ephemeris_gateway.h"

namespace orvex::astro {

// Swiss Ephemeris 2, speed 256, sidereal 65536; apparent places.
inline constexpr int kApparentFlags = 65794;

// Numbers of the library's ayanamsas.
inline constexpr int kKrishnamurti = 5;
inline constexpr int kKrishnamurtiSenthilathiban = 45;

// Sets the ayanamsa of the sidereal positions and houses that follow.
void SetSiderealMode(int ayanamsa);

// The first of the sidereal Placidus cusps alone, for less work than SiderealHouses. Latitude and
// longitude in degrees, north and east positive.
double SiderealAscendant(JulianDayUt day, double latitude, double longitude);

// The ayanamsa of the set mode with nutation, degrees.
double Ayanamsa(JulianDayUt day);

}  // namespace orvex::astro
