// Where a planet stands, as the transit tables show it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "astro/ephemeris_gateway.h"
#include "core/session.h"

namespace orvex::transit {

// The planets by their number in the monthly grid.
enum class Planet { Sun = 1, Moon, Mercury, Venus, Mars, Jupiter, Saturn, Rahu, Ketu };

inline constexpr int kPlanetCount = 9;

// The planet of a name in any case; nothing for any other name.
std::optional<Planet> PlanetOfName(const std::string& name);

// "Sun" to "Ketu".
std::string PlanetName(Planet planet);

// A longitude as the library gives it and as the tables show it, both degrees from 0 to 360. Where
// the ephemeris has no position, none is known.
struct TransitPosition {
  double Longitude = 0;
  std::string Degree;  // to the whole minute, two decimals
  bool Known = false;
};

// The planet at a wall-clock moment of a zone, hours east of Greenwich. Both nodes follow the node
// of the settings. DateRangeError outside the years 100 to 9999.
TransitPosition PositionAt(core::Session& session, Planet planet, core::DateTime local,
                           float zoneHours);

// The node of the settings, "M" or "T", as the bodies of the sky take it.
std::string NodeMode(const core::ApplicationState& state);

}  // namespace orvex::transit
