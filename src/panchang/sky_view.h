// The almanac of one instant over the user city.
#pragma once

#include <cstdint>
#include <string>

#include "core/session.h"
#include "core/table.h"

namespace orvex::panchang {

// The tag of a name is "R" for a retrograde planet, of a sign its number, of a star its lord.
enum class SkyPlanetColumn {
  Planet,
  Rashi,
  Degree,
  Nakshatra,
  Pada,
  DbEx,
  C,
  SignLord,
  StarLord,
  SubLord
};
enum class PanchangColumn { Label1, Value1, Label2, Value2 };
enum class SkyRulingColumn { Description, Planet };
// Twelve houses from the sign of the ascendant on; the codes of the planets in each, "Asc" ahead in
// the first, "~" behind a retrograde one, "*" behind a combust one ("*~" where both hold).
enum class SkyHouseColumn { House, Rashi, Planets };

struct SkyCaptions {
  std::string SkyView;
  std::string ReportTime;
  std::string Ascendant;
  std::string NodeMode;
  std::string DishaShool;
  std::string DishaShoolColor;  // red, green, blue: "255, 255, 255"
  std::string Date;
  std::string WeekdayName;
  std::string WeekdayLord;
  std::string City;
  std::string Place;  // "latitude, longitude"
  std::string MoonStatus;
  std::string Tithi;
  std::string YogaKaran;
  std::string PanchaPakshi;
  std::string VikramSamvat;
  std::string CurrentHora;
  std::string CurrentHoraPlanet;
  std::string HoraMantra;
  std::string RulingPlanetsText;
  std::string Sunrise;
  std::string Sunset;  // the end of the twelfth day hora
  std::string Ganapathi;
  std::string GanapathiRuling;
  std::string AscendantNext;  // the next change of its lords, as NextChangeText
  std::string MoonNext;
};

// Lives as long as its window does: each recomputation rewrites it in place, and what a step leaves
// alone keeps its text from the tick before.
struct SkyView {
  SkyCaptions Captions;
  core::Table SkyPlanets;
  core::Table Panchang;
  core::Table SkyRulingPlanets;
  core::Table DayHoras;
  core::Table NightHoras;
  core::Table SkyHouses;

  // Kept between the steps of one recomputation; degrees with two decimals.
  float AscDegree = 0;
  float SunDegree = 0;
  float MoonDegree = 0;
  std::int64_t DayMinutes = 0;
};

// The view of now. It overwrites the planet positions of the store and the two sun texts of the
// session. A step that fails is passed over.
void GetCurrentTransit(core::Session& session, SkyView& view);

// The view of a picked instant of the user city's clock, for the transit details: the label of the
// current hora is "Hora", and the table of ruling planets is left empty.
void GetHeaderDetails(core::Session& session, SkyView& view, core::DateTime instant);

}  // namespace orvex::panchang
