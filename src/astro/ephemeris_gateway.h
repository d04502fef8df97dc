// The one place that knows the Swiss Ephemeris: which function, flags, sidereal mode, Julian day.
#pragma once

#include <array>
#include <string>

#include "core/date_text.h"

namespace orvex::astro {

// Days since noon of 1 January 4713 BC. UT and ET (dynamical time) are not to be mixed up: where a
// UT routine is handed an ET day on purpose, it says so.
struct JulianDayUt {
  double Days = 0;
};
struct JulianDayEt {
  double Days = 0;
};

// The moment of the running computation.
struct EphemerisMoment {
  int Year = 0;
  int Month = 0;
  int Day = 0;
  int Hour = 0;
  int Minute = 0;
  JulianDayUt JulianDayUT;
  JulianDayEt JulianDayET;
};

// Numbers of the library. Uranus, Neptune and Pluto lie between Saturn and the nodes.
inline constexpr int kFirstPlanet = 0;
inline constexpr int kSaturnNumber = 6;
inline constexpr int kMeanNode = 10;
inline constexpr int kTrueNode = 11;

// Flags of a stored chart: Swiss Ephemeris 2, speed 256, true position 16, sidereal 65536.
inline constexpr int kChartFlags = 65810;
// Flags of the sky and the transit tools: the same without an ephemeris bit.
inline constexpr int kTransitFlags = 65808;

struct Position {
  double Longitude = 0;  // degrees, 0 to 360
  double Speed = 0;      // degrees a day, negative when retrograde
};

// Cusps 1 to 12 at their own index, degrees; index 0 is not used.
using Cusps = std::array<double, 13>;

// A computation runs: PrepareMoment, positions and houses, Close. Nothing is reported: a failed
// call leaves zeros, and without its files the library uses its own analytical ephemeris.
class EphemerisGateway {
 public:
  // Sets the sidereal mode (Krishnamurti) and gives the Julian days of a moment in UT. Seconds are
  // dropped.
  EphemerisMoment PrepareMoment(core::DateTime momentUt);

  // Position by swe_calc_ut. A stored chart hands it the ET day, see ComputePlanets.
  Position CalcUt(JulianDayUt day, int planet, int flags);

  // Position by swe_calc.
  Position Calc(JulianDayEt day, int planet, int flags);

  // The library's name of a planet, cut to ten characters.
  std::string PlanetName(int planet) const;

  // True obliquity of the ecliptic, degrees.
  double Obliquity(JulianDayUt day);

  // Sidereal Placidus cusps. Latitude and longitude in degrees, north and east positive.
  Cusps SiderealHouses(JulianDayUt day, double latitude, double longitude) const;

  // Tropical Placidus cusps of a right ascension of the meridian; all in degrees.
  Cusps TropicalHouses(double armc, double latitude, double obliquity) const;

  // Ends a computation.
  void Close() const;

  // Whether a position came from the analytical ephemeris or not at all.
  bool FellBack() const { return fellBack_; }
  bool Failed() const { return failed_; }

 private:
  void Look(int returnedFlags);

  bool fellBack_ = false;
  bool failed_ = false;
};

}  // namespace orvex::astro
