#include "chart/cusps_from_ascendant.h"

#include <optional>
#include <vector>

namespace orvex::chart {

namespace {

// Keeps the target off the exact values of the tables.
constexpr double kNudge = 0.000000001;
constexpr int kParts = 1000;
constexpr int kDegrees = 360;
constexpr int kUnbracketed = 269;

// Ascendants over a row of meridians: cusp 1 for each place of a table.
struct AscendantSearch {
  astro::EphemerisGateway& Ephemeris;
  double Latitude;
  double Obliquity;
  double Target;

  double AscendantAt(double armc) const {
    return Ephemeris.TropicalHouses(armc, Latitude, Obliquity)[1];
  }

  // The last place from 0 to `count` - 1 whose ascendant is at most the target and whose next one
  // is above it. `armcOf` gives the meridian of a place from 0 to `count`.
  template <typename ArmcOf>
  std::optional<int> LastBracket(int count, ArmcOf armcOf) const {
    std::optional<int> last;
    double here = AscendantAt(armcOf(0));
    for (int place = 0; place < count; ++place) {
      const double next = AscendantAt(armcOf(place + 1));
      if (here <= Target && next > Target) {
        last = place;
      }
      here = next;
    }
    return last;
  }
};

double TargetOf(double ascendant, double ayanamsa) {
  const double target = hp_Rnd0To360v(ascendant + ayanamsa) + kNudge;
  return target < kNudge ? target + kNudge : target;
}

}  // namespace

double hp_Rnd0To360v(double degrees) {
  if (degrees < 0) {
    return degrees + 360;
  }
  return degrees >= 360 ? degrees - 360 : degrees;
}

astro::Cusps CuspsFromAscendant(astro::EphemerisGateway& ephemeris, astro::JulianDayUt day,
                                double ascendant, double latitude, double ayanamsa) {
  const AscendantSearch search{ephemeris, latitude, ephemeris.Obliquity(day),
                               TargetOf(ascendant, ayanamsa)};
  const int degree =
      search.LastBracket(kDegrees, [](int i) { return i == kDegrees ? 0.0 : double(i); })
          .value_or(kUnbracketed);
  const auto thousandth = [degree](int j) { return degree + j / double(kParts); };
  const std::optional<int> j = search.LastBracket(kParts, thousandth);
  const double f = j ? thousandth(*j) : 0;
  const auto millionth = [f](int k) { return f + k / double(kParts) * (1 / double(kParts)); };
  const std::optional<int> k = search.LastBracket(kParts, millionth);
  // The upper border of the last bracket.
  const double g = k ? millionth(*k + 1) : 0;
  astro::Cusps cusps = ephemeris.TropicalHouses(g, latitude, search.Obliquity);
  cusps[0] = 0;
  return cusps;
}

}  // namespace orvex::chart
