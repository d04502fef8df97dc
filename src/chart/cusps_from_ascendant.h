// The houses of a given Ascendant.
#pragma once

#include <string>

#include "astro/ephemeris_gateway.h"

namespace orvex::chart {

// The ayanamsa of horary charts and hand-set Ascendants, degrees: the same for all dates.
inline constexpr double kFixedAyanamsa = 24.07;

// 360 added once below 0, subtracted once from 360 on. One correction only.
double hp_Rnd0To360v(double degrees);

// Tropical Placidus cusps (index 1 to 12, degrees; index 0 is 0) for which the Ascendant, in
// degrees of a zodiac that lies `ayanamsa` degrees ahead, rises at a latitude. The right ascension
// of the meridian is searched in steps of 1, 0.001 and 0.000001 degrees; the last bracket of a
// stage counts. A stage without a bracket leaves its value at 0: there is no other fallback.
astro::Cusps CuspsFromAscendant(astro::EphemerisGateway& ephemeris, astro::JulianDayUt day,
                                double ascendant, double latitude, double ayanamsa);

}  // namespace orvex::chart
