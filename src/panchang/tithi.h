// Tithi, karan and yoga of two longitudes.
#pragma once

#include <string>

#include "core/reference_data.h"

namespace orvex::panchang {

// "Sukla - Panchimi*Bava": half of the month and tithi, "*", the karan, of longitudes of the Moon
// and the Sun in degrees. "N/A*N/A" where no row holds the angle between them; a row of an unknown
// type gives "*" and the karan.
std::string TithiKaranOf(const core::ReferenceData& reference, float moonDegree, float sunDegree);

// The yoga of two longitudes in degrees 0 to 360; "" where they give none of the 27, as for two
// zeros.
std::string YogaOf(float a, float b);

}  // namespace orvex::panchang
