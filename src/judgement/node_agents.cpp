#include "judgement/node_agents.h"

#include "chart/aspects.h"
#include "chart/zodiac_lookups.h"

namespace orvex::judgement {

namespace {

using chart::PlanetColumn;

// Houses carry the signs in their order, so places are counted in houses.
int PlacesOn(std::size_t fromHouse, std::size_t toHouse) {
  return static_cast<int>((toHouse + chart::kHouses - fromHouse) % chart::kHouses) + 1;
}

bool StandsWithOrAspects(const chart::HoroscopeModel& model, const std::string& planet,
                         std::size_t nodeHouse) {
  const std::optional<std::size_t> house = HouseOfCode(model, chart::PlanetCode(planet));
  return house && (*house == nodeHouse || chart::AspectsPlace(planet, PlacesOn(*house, nodeHouse)));
}

}  // namespace

std::vector<std::size_t> AgentsOfNode(const chart::HoroscopeModel& model, chart::PlanetPlace node) {
  const std::size_t nodeRow = RowOf(node);
  const std::optional<std::size_t> nodeHouse =
      HouseOfCode(model, chart::PlanetCode(PlanetText(model, nodeRow, PlanetColumn::Planet)));
  std::vector<std::size_t> agents;
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    const std::string& planet = PlanetText(model, row, PlanetColumn::Planet);
    const bool isNode =
        row == RowOf(chart::PlanetPlace::Rahu) || row == RowOf(chart::PlanetPlace::Ketu);
    if (!isNode && (planet == PlanetTag(model, nodeRow, PlanetColumn::SignLord) ||
                    planet == PlanetTag(model, nodeRow, PlanetColumn::StarLord) ||
                    (nodeHouse && StandsWithOrAspects(model, planet, *nodeHouse)))) {
      agents.push_back(row);
    }
  }
  return agents;
}

}  // namespace orvex::judgement
