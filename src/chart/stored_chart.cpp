#include "chart/stored_chart.h"

#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

const char* OrderText(PlanetOrder order) {
  switch (order) {
    case PlanetOrder::Stored:
      return "cp.rowid";
    case PlanetOrder::RashiHouse:
      return "cp.rashihouse, cp.rowid";
    case PlanetOrder::Dasha:
      return "pm.dashasequence, cp.rowid";
  }
  return "cp.rowid";
}

}  // namespace

std::vector<StoredPlanet> LoadPlanets(const core::Session& session, std::int32_t clientId,
                                      PlanetOrder order) {
  std::vector<StoredPlanet> planets;
  for (core::Result row = session.StoreConnection.Query(
           "Select pm.id as plid, pm.planetname, pm.planetcode, pm.astronumber, pm.dashayears, "
           "cp.degree, cp.rashihouse, cp.chalithouse, cp.starlord, cp.sublord, cp.inretro "
           "from planet_master pm, client_planets cp where cp.planetid = pm.id and cp.clientid = " +
           core::WholeText(clientId) + " order by " + OrderText(order));
       !row.AtEnd(); row.Next()) {
    planets.push_back({row.Text("plid"), row.Text("planetname"), row.Text("planetcode"),
                       row.Text("astronumber"), row.Text("dashayears"), row.Number("degree"),
                       row.Text("chalithouse"), row.Text("starlord"), row.Text("sublord"),
                       row.Flag("inretro")});
  }
  return planets;
}

}  // namespace orvex::chart
