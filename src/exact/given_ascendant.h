// The meridian under which a given degree rises.
#pragma once

#include <optional>

#include "astro/ephemeris_gateway.h"

namespace orvex::exact {

// The right ascension of the meridian, degrees from 0 to 360, for which the library's houses have
// the Ascendant `tropical` at a latitude; all in degrees. Nothing where that degree never rises
// there. Source: spherical astronomy, a degree rises with its right ascension less its ascensional
// difference, asin(tan latitude tan declination), and the meridian stands 90 degrees before that.
std::optional<double> MeridianOf(const astro::EphemerisGateway& ephemeris, double tropical,
                                 double latitude, double obliquity);

}  // namespace orvex::exact
