// From birth or query data to the chart that is stored. Once saved, a chart is not computed again,
// so all roundings here are the program's truth about a client.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "astro/ephemeris_gateway.h"
#include "core/session.h"

namespace orvex::chart {

struct CuspRow {
  int Cusp = 0;          // 1 to 12
  std::string DegStart;  // sidereal degrees, two decimals
  std::string DegEnd;    // DegStart of the next cusp
  int RashiHouse = 0;    // sign of DegStart
};

struct PlanetRow {
  std::string Planet;
  std::string Degree;  // sidereal degrees, two decimals, truncated to the minute before
  std::optional<int> RashiHouse;
  std::optional<int> ChalitHouse;
  std::string StarLord;
  std::string SubLord;
  std::string InRetro;  // "1" or "0"
};

// Twelve cusps, and nine planets in the order Sun, Moon, Mercury, Venus, Mars, Jupiter, Saturn,
// Rahu, Ketu.
struct ChartResult {
  astro::EphemerisMoment Moment;
  std::vector<CuspRow> Cusps;
  std::vector<PlanetRow> Planets;
  int FirstRashiHouse = 0;  // the house in which Aries falls; 14 where cusp 1 has no sign
};

enum class AscendantChoice { Computed, ByHand, Horary };

// Texts are as entered and are known to be numbers.
struct ChartInput {
  core::DateTime Birth;   // local clock
  std::string Offset;     // hours east
  std::string Latitude;   // degrees, north positive
  std::string Longitude;  // degrees, east positive
  double CityOffset = 0;  // hours of the selected city
  AscendantChoice Ascendant = AscendantChoice::Computed;
  int HoraryNumber = 0;         // 1 to 249, for Horary
  std::string AscendantDegree;  // 0 to 360, for ByHand
};

// The chart of a birth or query, its moment by the choice of the settings. Nothing inside is
// checked: std::invalid_argument for texts that are no numbers, LookupError for a horary number or
// a degree without a row, core::DateRangeError for a moment outside the years 100 to 9999.
ChartResult ComputeChart(core::Session& session, const ChartInput& input);

// The same for a moment in UT that is known already, with computed Ascendant.
ChartResult ComputeChartAt(core::Session& session, core::DateTime momentUt, double latitude,
                           double longitude);

// The nine planets of a Julian day, without houses and lords. The UT routine takes the day as it
// is given; a stored chart hands it the ET day.
std::vector<PlanetRow> PlanetsAt(core::Session& session, astro::JulianDayUt day, int flags);

}  // namespace orvex::chart
