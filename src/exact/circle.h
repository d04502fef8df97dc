// Degrees on the circle.
#pragma once

#include <cmath>

namespace orvex::exact {

inline constexpr double kCircle = 360;

// Degrees of any size as those of the circle: 0 up to and without 360.
inline double Normalised(double degrees) {
  const double rest = std::fmod(degrees, kCircle);
  return rest < 0 ? rest + kCircle : rest;
}

}  // namespace orvex::exact
