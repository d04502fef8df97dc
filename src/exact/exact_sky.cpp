#include "exact/exact_sky.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "astro/sidereal.h"
#include "core/settings.h"
#include "core/text.h"
#include "exact/circle.h"
#include "exact/given_ascendant.h"

namespace orvex::exact {

namespace {

constexpr double kHalfCircle = 180;

constexpr std::array<const char*, 10> kNames = {
    "Sun", "Moon", "Mercury", "Venus", "Mars", "Jupiter", "Saturn", "Rahu", "Ketu", "Ascendant"};

}  // namespace

std::string PointName(Point point) { return kNames.at(static_cast<std::size_t>(point)); }

std::optional<Point> PointOfName(const std::string& name) {
  const auto* found = std::find_if(kNames.begin(), kNames.end(), [&name](const char* known) {
    return core::LowerCase(known) == core::LowerCase(name);
  });
  return found == kNames.end() ? std::nullopt
                               : std::optional(static_cast<Point>(found - kNames.begin()));
}

Reading ReadingOf(const core::Session& session) {
  return ReadingOfCode(core::ExactAyanamsaOf(session)).value_or(Reading::Kp);
}

std::optional<Reading> ReadingOfCode(const std::string& code) {
  if (core::LowerCase(code) == "kp") {
    return Reading::Kp;
  }
  return core::LowerCase(code) == "kp-new" ? std::optional(Reading::KpNew) : std::nullopt;
}

std::string ReadingName(Reading reading) { return reading == Reading::Kp ? "KP" : "KP new"; }

astro::JulianDayUt DayOf(core::DateTime ut) {
  constexpr double kDayOf1970 = 2440587.5;
  constexpr double kSecondsOfDay = 86400;
  return {kDayOf1970 + static_cast<double>(ut.time_since_epoch().count()) / kSecondsOfDay};
}

ExactSky::ExactSky(astro::EphemerisGateway& ephemeris, Reading reading, char nodeMode)
    : ephemeris_(ephemeris), reading_(reading), nodeMode_(nodeMode) {}

ExactSky::~ExactSky() { ephemeris_.Close(); }

// The mode is the library's own state, which other computations set in between.
void ExactSky::SetReading() const {
  astro::SetSiderealMode(reading_ == Reading::Kp ? astro::kKrishnamurti
                                                 : astro::kKrishnamurtiSenthilathiban);
}

astro::Position ExactSky::PositionOf(Point planet, core::DateTime ut) const {
  if (planet == Point::Ascendant) {
    throw std::invalid_argument("the Ascendant needs a place");
  }
  SetReading();
  const bool node = planet == Point::Rahu || planet == Point::Ketu;
  const int nodeNumber = HasTrueNode() ? astro::kTrueNode : astro::kMeanNode;
  const int number = node ? nodeNumber : astro::kFirstPlanet + static_cast<int>(planet);
  astro::Position position = ephemeris_.CalcUt(DayOf(ut), number, astro::kApparentFlags);
  if (planet == Point::Ketu) {
    position.Longitude = Normalised(position.Longitude + kHalfCircle);
  }
  return position;
}

double ExactSky::AscendantAt(core::DateTime ut, const Place& place) const {
  SetReading();
  return astro::SiderealAscendant(DayOf(ut), place.Latitude, place.Longitude);
}

astro::Cusps ExactSky::CuspsAt(core::DateTime ut, const Place& place) const {
  SetReading();
  return ephemeris_.SiderealHouses(DayOf(ut), place.Latitude, place.Longitude);
}

std::optional<astro::Cusps> ExactSky::CuspsOfAscendant(Units ascendant, core::DateTime ut,
                                                       double latitude) const {
  const double ayanamsa = AyanamsaAt(ut);
  const double tropical = Normalised(DegreesOf(ascendant) + ayanamsa);
  const double obliquity = ephemeris_.Obliquity(DayOf(ut));
  const std::optional<double> armc = MeridianOf(ephemeris_, tropical, latitude, obliquity);
  if (!armc) {
    return std::nullopt;
  }
  astro::Cusps cusps = ephemeris_.TropicalHouses(*armc, latitude, obliquity);
  std::transform(cusps.begin() + 1, cusps.end(), cusps.begin() + 1,
                 [ayanamsa](double cusp) { return Normalised(cusp - ayanamsa); });
  // The axis is what was given; the way there and back costs a last digit, which decides at a
  // border.
  cusps[1] = DegreesOf(ascendant);
  cusps[7] = DegreesOf(OnCircle(ascendant + kUnitsOfCircle / 2));
  return cusps;
}

double ExactSky::AyanamsaAt(core::DateTime ut) const {
  SetReading();
  return astro::Ayanamsa(DayOf(ut));
}

}  // namespace orvex::exact
