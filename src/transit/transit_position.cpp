#include "transit/transit_position.h"

#include <array>
#include <cmath>

#include "astro/angle_text.h"
#include "astro/sky_bodies.h"
#include "chart/chart_moment.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::transit {

namespace {

constexpr std::array<const char*, kPlanetCount> kNames = {
    "Sun", "Moon", "Mercury", "Venus", "Mars", "Jupiter", "Saturn", "Rahu", "Ketu"};

// The library's number of the body that is asked for; Ketu is opposite the node. Nothing where the
// settings name no node.
std::optional<int> BodyOf(Planet planet, const std::string& nodeMode) {
  if (planet != Planet::Rahu && planet != Planet::Ketu) {
    return static_cast<int>(planet) - static_cast<int>(Planet::Sun);
  }
  const int node = astro::NodeNumber(nodeMode);
  return node == 0 ? std::nullopt : std::optional(node);
}

}  // namespace

std::optional<Planet> PlanetOfName(const std::string& name) {
  for (int number = 1; number <= kPlanetCount; ++number) {
    if (core::LowerCase(PlanetName(Planet{number})) == core::LowerCase(name)) {
      return Planet{number};
    }
  }
  return std::nullopt;
}

std::string PlanetName(Planet planet) {
  return kNames.at(static_cast<std::size_t>(planet) - static_cast<std::size_t>(Planet::Sun));
}

TransitPosition PositionAt(core::Session& session, Planet planet, core::DateTime local,
                           float zoneHours) {
  const std::optional<int> body = BodyOf(planet, NodeMode(session.State));
  if (!body) {
    return {};
  }
  const astro::EphemerisMoment moment =
      session.Ephemeris.PrepareMoment(chart::PlainMomentUt(local, zoneHours));
  const astro::Position found =
      session.Ephemeris.Calc(moment.JulianDayET, *body, astro::kTransitFlags);
  const bool known = found.Longitude != 0 || found.Speed != 0;
  const float degree = astro::DegreeToTheMinute(found.Longitude);
  if (planet != Planet::Ketu) {
    return {found.Longitude, core::TwoDecimals(degree), known};
  }
  return {std::fmod(found.Longitude + 180, 360), core::TwoDecimals(astro::KetuOfSky(degree)),
          known};
}

std::string NodeMode(const core::ApplicationState& state) {
  return std::string(1, state.RahuKetuCalculation);
}

}  // namespace orvex::transit
