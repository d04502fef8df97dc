// The bodies of the sky and the transit tools at one instant.
#pragma once

#include <string>
#include <vector>

#include "astro/ephemeris_gateway.h"

namespace orvex::astro {

struct SkyBody {
  std::string Name;  // "Rahu" for the node that is in use
  float Degree = 0;  // sidereal longitude by DegreeToTheMinute, 0 to 360
  bool Retrograde = false;
};

// Sun, Moon, Mercury, Venus, Mars, Jupiter, Saturn, Uranus, Neptune, Pluto, Rahu, Ketu in the order
// of the library's numbers. `nodeMode` is "M" for the mean node, "T" for the true one; with another
// mode Rahu is left out and Ketu stands at 180. Both nodes count as retrograde.
std::vector<SkyBody> SkyBodiesAt(EphemerisGateway& ephemeris, JulianDayUt day,
                                 const std::string& nodeMode);

// The same at an ephemeris time, as the transit tools compute.
std::vector<SkyBody> SkyBodiesAt(EphemerisGateway& ephemeris, JulianDayEt day,
                                 const std::string& nodeMode);

// The library's number of the node in use; 0 for a mode that is neither "M" nor "T".
int NodeNumber(const std::string& nodeMode);

// The longitude of Ketu in the sky and in the transit tables: opposite Rahu, less 360 when above
// 360. Where Rahu stands at exactly 180 that is 360.00; a stored chart has 0.00 there.
float KetuOfSky(float rahu);

}  // namespace orvex::astro
