#include "horoscope/unsaved_horoscope.h"

#include <algorithm>
#include <iterator>

#include "chart/cusp_table.h"
#include "chart/dasha.h"
#include "chart/house_table.h"
#include "chart/planet_table.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "horoscope/client_facts.h"

namespace orvex::horoscope {

namespace {

// The planets as they would be read from the store, in the order in which they are written.
std::vector<chart::StoredPlanet> AsWritten(const core::ReferenceData& reference,
                                           const chart::ChartResult& chart) {
  std::vector<chart::StoredPlanet> planets;
  for (const chart::PlanetRow& row : chart.Planets) {
    const core::PlanetInfo& info = chart::PlanetOfName(reference, row.Planet);
    planets.push_back({core::WholeText(info.Id), info.PlanetName, info.PlanetCode,
                       core::WholeText(info.AstroNumber), core::WholeText(info.DashaYears),
                       core::ToDouble(row.Degree),
                       row.ChalitHouse ? core::WholeText(*row.ChalitHouse) : "", row.StarLord,
                       row.SubLord, row.InRetro == "1"});
  }
  return planets;
}

std::vector<chart::StoredPlanet> InDashaOrder(const core::ReferenceData& reference,
                                              const std::vector<chart::StoredPlanet>& planets) {
  std::vector<chart::StoredPlanet> ordered;
  for (const chart::DashaPlanet& next : chart::DashaCycleOf(reference)) {
    std::copy_if(planets.begin(), planets.end(), std::back_inserter(ordered),
                 [&next](const chart::StoredPlanet& planet) { return planet.Name == next.Name; });
  }
  return ordered;
}

std::array<std::string, chart::kHouses> CuspDegrees(const chart::ChartResult& chart) {
  std::array<std::string, chart::kHouses> degrees;
  for (std::size_t row = 0; row < degrees.size() && row < chart.Cusps.size(); ++row) {
    degrees.at(row) = core::DoubleText(core::ToDouble(chart.Cusps[row].DegStart));
  }
  return degrees;
}

}  // namespace

chart::HoroscopeModel UnsavedHoroscope(core::Session& session, const chart::ChartInput& input) {
  return UnsavedHoroscope(session, input.Birth, chart::ComputeChart(session, input));
}

chart::HoroscopeModel UnsavedHoroscope(const core::Session& session, core::DateTime birth,
                                       const chart::ChartResult& chart) {
  const core::ReferenceData& reference = session.Reference;
  const std::vector<chart::StoredPlanet> planets = AsWritten(reference, chart);
  chart::HoroscopeModel model;
  model.Birth = birth;
  model.FirstRashiHouse = chart.FirstRashiHouse;
  chart::FillStarTable(reference, model);
  chart::AddHouseRows(model);
  chart::FillCusps(model, CuspDegrees(chart));
  core::Attempt([&] { chart::FillCuspTable(reference, model); });
  chart::FillRashis(reference, model);
  // Planets of one sign share its house, so the order by houses is that in which they are written.
  chart::FillRcPlanets(model, planets);
  chart::FillPlanetTable(reference, model, InDashaOrder(reference, planets));
  chart::AppendOwnedHouses(model);
  chart::FillRashiLords(reference, model);
  chart::FillSignLords(model);
  KeepLights(model);
  chart::BuildDashaList(session, model);
  return model;
}

}  // namespace orvex::horoscope
