#include "chart/chart_computation.h"

#include <algorithm>

#include "astro/angle_text.h"
#include "chart/chart_moment.h"
#include "chart/cusps_from_ascendant.h"
#include "chart/house_placement.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/settings.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr int kCusps = 12;

// Opposite Rahu, as a stored chart has it: 0.00, not 360.00, where Rahu stands at exactly 180,
// because no sign holds 360 and Aries begins at 0. The sky and the transit tables
// write 360.00 there (astro::KetuOfSky).
std::string KetuOfChart(const std::string& rahuDegree) {
  const double rahu = core::ToDouble(rahuDegree);
  if (rahu == 180) {
    return "0.00";
  }
  return core::TwoDecimals(rahu > 180 ? rahu - 180 : rahu + 180);
}

PlanetRow StoredRowOf(const std::string& name, const std::string& degree, bool retrograde) {
  PlanetRow row;
  row.Planet = name;
  row.Degree = degree;
  row.InRetro = retrograde ? "1" : "0";
  return row;
}

// DegStart of a cusp of CuspsFromAscendant.
std::string FixedSiderealDegree(double tropical) {
  std::string degree = core::TwoDecimals(tropical - kFixedAyanamsa);
  if (core::Contains(degree, "-")) {
    degree = core::TwoDecimals(core::ToDouble(degree) + 360);
  }
  return degree;
}

std::vector<std::string> DegreesFromAscendant(core::Session& session,
                                              const astro::EphemerisMoment& moment, float ascendant,
                                              double latitude) {
  const astro::Cusps cusps = CuspsFromAscendant(session.Ephemeris, moment.JulianDayUT, ascendant,
                                                latitude, kFixedAyanamsa);
  std::vector<std::string> degrees;
  std::transform(cusps.begin() + 1, cusps.end(), std::back_inserter(degrees), FixedSiderealDegree);
  return degrees;
}

std::vector<std::string> ComputedDegrees(core::Session& session,
                                         const astro::EphemerisMoment& moment, double latitude,
                                         double longitude) {
  const astro::Cusps cusps =
      session.Ephemeris.SiderealHouses(moment.JulianDayUT, latitude, longitude);
  std::vector<std::string> degrees;
  std::transform(cusps.begin() + 1, cusps.end(), std::back_inserter(degrees),
                 astro::ChartDegreeText);
  return degrees;
}

std::vector<std::string> CuspDegrees(core::Session& session, const astro::EphemerisMoment& moment,
                                     const ChartInput& input) {
  const double latitude = core::ToDouble(input.Latitude);
  if (input.Ascendant == AscendantChoice::Horary) {
    const auto begin = static_cast<float>(BeginOfSub(session.Reference, input.HoraryNumber));
    return DegreesFromAscendant(session, moment, begin, latitude);
  }
  if (input.Ascendant == AscendantChoice::Computed) {
    return ComputedDegrees(session, moment, latitude, core::ToDouble(input.Longitude));
  }
  const float entered = core::ToSingle(core::TwoDecimals(core::ToDouble(input.AscendantDegree)));
  return DegreesFromAscendant(session, moment, entered, latitude);
}

std::vector<CuspRow> ComputeCusps(const std::vector<std::string>& degrees) {
  std::vector<CuspRow> cusps;
  // Kept from row to row: a degree that no sign holds keeps the sign of the row before it.
  int rashi = 0;
  for (int n = 0; n < kCusps; ++n) {
    const std::string& start = degrees.at(static_cast<std::size_t>(n));
    const std::string& end = degrees.at(static_cast<std::size_t>((n + 1) % kCusps));
    const int found = RashiOfSingle(core::ToSingle(start));
    rashi = found == 0 ? rashi : found;
    cusps.push_back({n + 1, start, end, rashi});
  }
  return cusps;
}

// The UT routine is handed the ET day: the charts of all stored clients depend on it.
std::vector<PlanetRow> ComputePlanets(core::Session& session,
                                      const astro::EphemerisMoment& moment) {
  return PlanetsAt(session, {moment.JulianDayET.Days}, astro::kChartFlags);
}

ChartResult Assemble(core::Session& session, const astro::EphemerisMoment& moment,
                     const std::vector<std::string>& cuspDegrees, std::vector<PlanetRow> planets) {
  ChartResult chart;
  chart.Moment = moment;
  chart.Planets = std::move(planets);
  chart.Cusps = ComputeCusps(cuspDegrees);
  PlacePlanets(session.Reference, chart.Cusps, chart.Planets);
  session.Ephemeris.Close();
  chart.FirstRashiHouse = HouseOfAries(RashiOfDegree(core::ToDouble(chart.Cusps.front().DegStart)));
  return chart;
}

}  // namespace

std::vector<PlanetRow> PlanetsAt(core::Session& session, astro::JulianDayUt day, int flags) {
  const int node = session.State.RahuKetuCalculation == 'T' ? astro::kTrueNode : astro::kMeanNode;
  std::vector<PlanetRow> rows;
  for (int number = astro::kFirstPlanet; number <= astro::kTrueNode; ++number) {
    const astro::Position position = session.Ephemeris.CalcUt(day, number, flags);
    const std::string degree = astro::ChartDegreeText(position.Longitude);
    if (number <= astro::kSaturnNumber) {
      rows.push_back(StoredRowOf(session.Ephemeris.PlanetName(number), degree, position.Speed < 0));
    } else if (number == node) {
      rows.push_back(StoredRowOf("Rahu", degree, false));
      rows.push_back(StoredRowOf("Ketu", KetuOfChart(degree), false));
    }
  }
  return rows;
}

ChartResult ComputeChart(core::Session& session, const ChartInput& input) {
  const core::DateTime momentUt = ChosenMomentUt(core::BirthMomentOf(session), input.Birth,
                                                 input.Offset, input.Longitude, input.CityOffset);
  const astro::EphemerisMoment moment = session.Ephemeris.PrepareMoment(momentUt);
  std::vector<PlanetRow> planets = ComputePlanets(session, moment);
  return Assemble(session, moment, CuspDegrees(session, moment, input), std::move(planets));
}

ChartResult ComputeChartAt(core::Session& session, core::DateTime momentUt, double latitude,
                           double longitude) {
  const astro::EphemerisMoment moment = session.Ephemeris.PrepareMoment(momentUt);
  std::vector<PlanetRow> planets = ComputePlanets(session, moment);
  return Assemble(session, moment, ComputedDegrees(session, moment, latitude, longitude),
                  std::move(planets));
}

}  // namespace orvex::chart
