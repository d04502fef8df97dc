#include "astro/sky_bodies.h"

#include "astro/angle_text.h"

namespace orvex::astro {

namespace {

constexpr int kPluto = 9;

template <typename PositionOf>
std::vector<SkyBody> SkyBodies(EphemerisGateway& ephemeris, const std::string& nodeMode,
                               PositionOf positionOf) {
  std::vector<SkyBody> bodies;
  for (int number = kFirstPlanet; number <= kPluto; ++number) {
    const Position position = positionOf(number);
    bodies.push_back(
        {ephemeris.PlanetName(number), DegreeToTheMinute(position.Longitude), position.Speed < 0});
  }
  float rahu = 0;
  if (const int node = NodeNumber(nodeMode); node != 0) {
    rahu = DegreeToTheMinute(positionOf(node).Longitude);
    bodies.push_back({"Rahu", rahu, true});
  }
  bodies.push_back({"Ketu", KetuOfSky(rahu), true});
  return bodies;
}

}  // namespace

std::vector<SkyBody> SkyBodiesAt(EphemerisGateway& ephemeris, JulianDayUt day,
                                 const std::string& nodeMode) {
  return SkyBodies(ephemeris, nodeMode,
                   [&](int number) { return ephemeris.CalcUt(day, number, kTransitFlags); });
}

std::vector<SkyBody> SkyBodiesAt(EphemerisGateway& ephemeris, JulianDayEt day,
                                 const std::string& nodeMode) {
  return SkyBodies(ephemeris, nodeMode,
                   [&](int number) { return ephemeris.Calc(day, number, kTransitFlags); });
}

int NodeNumber(const std::string& nodeMode) {
  if (nodeMode == "M") {
    return kMeanNode;
  }
  return nodeMode == "T" ? kTrueNode : 0;
}

float KetuOfSky(float rahu) {
  const float opposite = rahu + 180;
  return opposite > 360 ? opposite - 360 : opposite;
}

}  // namespace orvex::astro
