// Positions and cusps of an instant, to the second: apparent places, sidereal by either ayanamsa.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "astro/ephemeris_gateway.h"
#include "core/date_text.h"
#include "core/session.h"
#include "exact/exact_zodiac.h"

namespace orvex::exact {

// What moves through the zodiac. The planets stand in the order of the exact tables.
enum class Point { Sun, Moon, Mercury, Venus, Mars, Jupiter, Saturn, Rahu, Ketu, Ascendant };

// The nine planets, without the Ascendant.
inline constexpr std::array<Point, 9> kPlanets = {Point::Sun,    Point::Moon, Point::Mercury,
                                                  Point::Venus,  Point::Mars, Point::Jupiter,
                                                  Point::Saturn, Point::Rahu, Point::Ketu};

// "Sun" to "Ascendant", and the point of such a name in any case; nothing for any other.
std::string PointName(Point point);
std::optional<Point> PointOfName(const std::string& name);

// The two ayanamsas: Krishnamurti, and Krishnamurti as Senthilathiban computes it.
enum class Reading { Kp, KpNew };

// The reading that the settings choose.
Reading ReadingOf(const core::Session& session);

// The reading of the code "kp" or "kp-new" in any case; nothing for any other.
std::optional<Reading> ReadingOfCode(const std::string& code);

// "KP" or "KP new".
std::string ReadingName(Reading reading);

// Degrees, north and east positive.
struct Place {
  double Latitude = 0;
  double Longitude = 0;
};

// The Julian day of a moment in UT, to the second.
astro::JulianDayUt DayOf(core::DateTime ut);

// The sky by one reading. Moments are in UT, longitudes in degrees from 0 to 360, speeds in degrees
// a day. A moment that the ephemeris does not reach gives zeros, and the gateway tells of it.
class ExactSky {
 public:
  // `nodeMode` is 'T' for the true node, anything else for the mean one.
  ExactSky(astro::EphemerisGateway& ephemeris, Reading reading, char nodeMode);
  ExactSky(const ExactSky&) = delete;
  ExactSky& operator=(const ExactSky&) = delete;
  ~ExactSky();

  // A planet; the Ascendant has no place to rise here: std::invalid_argument. Ketu is opposite
  // Rahu and has its speed.
  astro::Position PositionOf(Point planet, core::DateTime ut) const;

  // The Ascendant of a place.
  double AscendantAt(core::DateTime ut, const Place& place) const;

  // The Placidus cusps of a place, 1 to 12.
  astro::Cusps CuspsAt(core::DateTime ut, const Place& place) const;

  // The cusps, 1 to 12, for which an Ascendant given in units rises at a latitude. Nothing where it
  // never does.
  std::optional<astro::Cusps> CuspsOfAscendant(Units ascendant, core::DateTime ut,
                                               double latitude) const;

  // The ayanamsa, degrees.
  double AyanamsaAt(core::DateTime ut) const;

  // Whether Rahu and Ketu are those of the true node.
  bool HasTrueNode() const { return nodeMode_ == 'T'; }

 private:
  void SetReading() const;

  astro::EphemerisGateway& ephemeris_;
  Reading reading_;
  char nodeMode_;
};

}  // namespace orvex::exact
