#include "report/sky_chart.h"

#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::report {

namespace {

using panchang::SkyHouseColumn;

// "Asc 5 SU MO": the number stands behind the mark of the ascendant.
std::string NorthText(std::size_t house, const std::string& rashi, const std::string& planets) {
  constexpr std::string_view kAscendant = "Asc";
  if (house != 0) {
    return core::Trim(rashi + " " + planets);
  }
  return std::string(kAscendant) + " " + rashi + planets.substr(kAscendant.size());
}

void FillSouthSky(std::size_t house, const core::Cell& east, SouthGrid& grid) {
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      SouthSignCell& cell = grid.at(row).at(column);
      if (core::WholeText(cell.Sign) == east.Tag) {
        static_cast<core::Cell&>(cell) = east;
        cell.Background = house == 0 ? core::kAscendantTint : core::kNeutralColor;
      }
    }
  }
}

}  // namespace

ChartCells BuildSkyChart(const panchang::SkyView& view) {
  ChartCells cells;
  for (std::size_t house = 0; house < view.SkyHouses.Rows.size(); ++house) {
    const std::string& rashi = view.SkyHouses.At(house, SkyHouseColumn::Rashi).Text;
    const std::string& planets = view.SkyHouses.At(house, SkyHouseColumn::Planets).Text;
    core::Cell& north = cells.North.at(house);
    north.Text = NorthText(house, rashi, planets);
    north.Tag = rashi;
    core::Cell& east = cells.East.at(static_cast<std::size_t>(*core::ParseWhole(rashi)) - 1);
    east.Text = planets;
    east.Tag = rashi;
    FillSouthSky(house, east, cells.SouthRashi);
  }
  return cells;
}

}  // namespace orvex::report
