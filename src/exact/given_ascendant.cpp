#include "exact/given_ascendant.h"
#include "exact/circle.h"

#include <array>
#include <cmath>
#include <numbers>

namespace orvex::exact {

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kQuarter = 90;
// How far the library's Ascendant may lie from the one that is wanted, degrees.
constexpr double kClose = 1e-6;

// The arc between two longitudes, 0 to 180 degrees.
double Apart(double a, double b) {
  const double arc = Normalised(a - b);
  return std::min(arc, kCircle - arc);
}

}  // namespace

std::optional<double> MeridianOf(const astro::EphemerisGateway& ephemeris, double tropical,
                                 double latitude, double obliquity) {
  const double lambda = tropical * kDegree;
  const double epsilon = obliquity * kDegree;
  const double ascension = std::atan2(std::sin(lambda) * std::cos(epsilon), std::cos(lambda));
  const double declination = std::asin(std::sin(lambda) * std::sin(epsilon));
  const double sine = std::tan(latitude * kDegree) * std::tan(declination);
  if (std::fabs(sine) > 1) {
    return std::nullopt;
  }
  const double difference = std::asin(sine);
  // Inside the polar circles the library may count the setting degree as the rising one.
  for (const double armc : {(ascension - difference) / kDegree - kQuarter,
                            (ascension + difference) / kDegree + kQuarter}) {
    const double meridian = Normalised(armc);
    if (Apart(ephemeris.TropicalHouses(meridian, latitude, obliquity)[1], tropical) < kClose) {
      return meridian;
    }
  }
  return std::nullopt;
}

}  // namespace orvex::exact
