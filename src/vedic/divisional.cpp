#include "vedic/divisional.h"

#include <span>

#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/divisional_tables.h"

namespace orvex::vedic {

namespace {

using chart::HouseColumn;
using chart::PlanetColumn;

std::span<const DivisionRow> RowsOf(Division division) {
  if (division == Division::Navamsha) {
    return kNavamshaTable;
  }
  return kDashamshaTable;
}

// The ascendant's degree within its sign, a difference of singles. It can fall between two rows of
// a table; the first row counts then.
float AscendantDegree(int sign, float longitude) {
  return sign == 1 ? longitude : longitude - static_cast<float>(sign * 30 - 30);
}

void LayOutHouses(int ascendant, DivisionChart& chart) {
  for (int house = 1; house <= chart::kSignCount; ++house) {
    const int sign = (ascendant + house - 2) % chart::kSignCount + 1;
    const auto place = static_cast<std::size_t>(house);
    chart.HouseSigns.at(place) = sign;
    chart.North.at(place) = core::WholeText(sign);
  }
}

void PlacePlanet(const std::string& code, int sign, DivisionChart& chart) {
  for (std::size_t house = 1; house <= chart::kSignCount; ++house) {
    if (chart.HouseSigns.at(house) == sign) {
      chart.North.at(house) = core::Trim(chart.North.at(house) + " " + code);
    }
  }
  std::string& east = chart.East.at(static_cast<std::size_t>(sign));
  east = core::Trim(east + " " + code);
}

// The label of the house whose sign a cell has; a sign without planets stays blank.
void FillSouth(DivisionChart& chart) {
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      chart::SouthCell& cell = chart.South.at(row).at(column);
      cell.Sign = chart::kSouthSigns.at(row).at(column);
      if (cell.Sign == 0) {
        continue;
      }
      for (std::size_t house = 1; house <= chart::kSignCount; ++house) {
        if (chart.HouseSigns.at(house) == cell.Sign && core::Contains(chart.North.at(house), " ")) {
          cell.Text = chart.North.at(house);
        }
      }
      cell.Background = cell.Sign == chart.HouseSigns.at(1) ? core::kAscendantTint : "";
    }
  }
}

}  // namespace

int DivisionSign(Division division, int sign, float degree, std::size_t& row) {
  const std::span<const DivisionRow> rows = RowsOf(division);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].Start <= degree && degree <= rows[i].End) {
      row = i;
      break;
    }
  }
  return rows[row].Signs.at(static_cast<std::size_t>(sign) - 1);
}

DivisionChart BuildDivision(const chart::BirthTables& birth, Division division) {
  DivisionChart chart;
  core::Attempt([&] {
    const auto sign =
        static_cast<int>(core::ParseWhole(birth.HouseTable.At(0, HouseColumn::Rashi).Text).value());
    const float cusp = core::ToSingle(birth.HouseTable.At(0, HouseColumn::CuspDegree).Text);
    std::size_t row = 0;
    LayOutHouses(DivisionSign(division, sign, AscendantDegree(sign, cusp), row), chart);
  });
  // A planet that no row holds takes the row of the planet before it.
  std::size_t row = 0;
  for (std::size_t planet = 0; planet < birth.PlanetTable.Rows.size(); ++planet) {
    core::Attempt([&] {
      const double longitude =
          core::ToDouble(birth.PlanetTable.At(planet, PlanetColumn::Degree).Text);
      const float degree = core::ToSingle(birth.PlanetTable.At(planet, PlanetColumn::R).Tag);
      const int sign = DivisionSign(division, chart::RashiOfDegree(longitude), degree, row);
      PlacePlanet(chart::PlanetCode(birth.PlanetTable.At(planet, PlanetColumn::Planet).Text), sign,
                  chart);
    });
  }
  if (const int ascendant = chart.HouseSigns.at(1); ascendant != 0) {
    std::string& east = chart.East.at(static_cast<std::size_t>(ascendant));
    east = "Asc " + east;
  }
  FillSouth(chart);
  return chart;
}

}  // namespace orvex::vedic
