#include "report/chart_cells.h"

#include "chart/planet_marks.h"
#include "chart/vastu_direction.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::report {

namespace {

using chart::HouseColumn;
using chart::HouseText;
using chart::PlanetColumn;

// Marks the first house in the hidden data of a South cell.
constexpr const char* kFirstHouse = "A-";

// Parts the direction of a sign from its facts, as those are parted from each other.
constexpr const char* kBetweenFacts = " | ";

std::string DirectionText(int sign) { return "Direction: " + chart::VastuDirection(sign); }

int NumberOf(const std::string& text) { return static_cast<int>(core::ParseWhole(text).value()); }

core::Cell& SignCell(std::array<core::Cell, chart::kHouses>& cells, int sign) {
  return cells.at(static_cast<std::size_t>(sign) - 1);
}

void FillNorth(const chart::HoroscopeModel& model, std::size_t house, ChartCells& cells) {
  const core::Cell& rashi = model.HouseTable.At(house, HouseColumn::Rashi);
  const int sign = NumberOf(rashi.Text);
  core::Cell& cell = cells.North.at(house);
  cell.Text = core::Trim(rashi.Text + " " + HouseText(model, house, HouseColumn::RcPlanets));
  cell.Tag = rashi.Text;
  cell.Tooltip = rashi.Tag + kBetweenFacts + DirectionText(sign);
  core::Cell& kp = cells.NorthKP.at(house);
  kp.Tag = HouseText(model, house, HouseColumn::KpChartRashi);
  kp.Text = "(" + HouseText(model, house, HouseColumn::CuspDegree) + ")\n" +
            core::Trim(kp.Tag + " " + HouseText(model, house, HouseColumn::BcPlanets));
}

void FillEast(const chart::HoroscopeModel& model, std::size_t house, ChartCells& cells) {
  const core::Cell& rashi = model.HouseTable.At(house, HouseColumn::Rashi);
  const int sign = NumberOf(rashi.Text);
  core::Cell& cell = SignCell(cells.East, sign);
  cell.Text =
      core::Trim((house == 0 ? "Asc " : "") + HouseText(model, house, HouseColumn::RcPlanets));
  cell.Tag = rashi.Text;
  cell.Tooltip = DirectionText(sign) + kBetweenFacts + rashi.Tag;
}

// Two cusps of one sign share its cell.
void FillEastKp(const chart::HoroscopeModel& model, std::size_t house, ChartCells& cells) {
  const std::string& sign = HouseText(model, house, HouseColumn::KpChartRashi);
  core::Cell& cell = SignCell(cells.EastKP, NumberOf(sign));
  cell.Text = core::Trim(cell.Text + (house == 0 ? " Asc " : " ") +
                         HouseText(model, house, HouseColumn::BcPlanets));
  cell.Tag = sign;
}

void FillSouth(const chart::HoroscopeModel& model, std::size_t house, ChartCells& cells) {
  const std::string& rashi = HouseText(model, house, HouseColumn::Rashi);
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      if (core::WholeText(cells.SouthRashi.at(row).at(column).Sign) != rashi) {
        continue;
      }
      core::Cell& cell = cells.SouthRashi.at(row).at(column);
      cell.Text = HouseText(model, house, HouseColumn::RcPlanets);
      cell.Background = house == 0 ? core::kAscendantTint : core::kNeutralColor;
      cell.Tag = (house == 0 ? kFirstHouse : "") +
                 HouseText(model, house, HouseColumn::KpChartRashi) + "*" +
                 HouseText(model, house, HouseColumn::CuspDegree) + "*" +
                 HouseText(model, house, HouseColumn::BcPlanets);
    }
  }
}

// The KP grid shows what the rashi grid keeps hidden.
void FillSouthKp(ChartCells& cells) {
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      const core::Cell& rashi = cells.SouthRashi.at(row).at(column);
      const std::vector<std::string> data = core::Split(rashi.Tag, '*');
      if (data.size() == 3) {
        core::Cell& kp = cells.SouthKP.at(row).at(column);
        kp.Text = "(" + data[1] + ")\n" + data[2];
        kp.Background = rashi.Background;
      }
    }
  }
}

// Writes a mark behind a planet's code in every cell of the rashi charts that holds it.
void Mark(const std::string& code, const char* mark, ChartCells& cells) {
  const auto replace = [&](core::Cell& cell) {
    cell.Text = core::ReplaceAll(cell.Text, code, code + mark);
  };
  for (std::size_t i = 0; i < chart::kHouses; ++i) {
    replace(cells.North.at(i));
    replace(cells.East.at(i));
  }
  for (auto& row : cells.SouthRashi) {
    for (core::Cell& cell : row) {
      replace(cell);
    }
  }
}

// Retrograde first: the second mark then comes between the code and the first one.
void ShowCombustRetroInRashiChart(const chart::HoroscopeModel& model, ChartCells& cells) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    const std::string code = chart::PlanetCode(chart::PlanetText(model, row, PlanetColumn::Planet));
    if (chart::PlanetText(model, row, PlanetColumn::R) == "R") {
      Mark(code, chart::kRetrogradeMark, cells);
    }
    if (chart::PlanetText(model, row, PlanetColumn::C) == "C") {
      Mark(code, chart::kCombustMark, cells);
    }
  }
}

}  // namespace

SouthGrid EmptySouthGrid() {
  SouthGrid grid;
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      grid.at(row).at(column).Sign = chart::kSouthSigns.at(row).at(column);
    }
  }
  return grid;
}

ChartCells BuildChartCells(const chart::HoroscopeModel& model) {
  ChartCells cells;
  for (std::size_t house = 0; house < chart::kHouses; ++house) {
    core::Attempt([&] { FillNorth(model, house, cells); });
    core::Attempt([&] { FillEast(model, house, cells); });
    core::Attempt([&] { FillEastKp(model, house, cells); });
    core::Attempt([&] { FillSouth(model, house, cells); });
  }
  FillSouthKp(cells);
  ShowCombustRetroInRashiChart(model, cells);
  return cells;
}

}  // namespace orvex::report
