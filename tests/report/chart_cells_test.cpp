#include "report/chart_cells.h"

#include <gtest/gtest.h>

#include "core/cell_colors.h"
#include "core/text.h"
#include "support/model_builder.h"

namespace orvex::report {
namespace {

using chart::HouseColumn;
using chart::PlanetColumn;

TEST(ChartCells, EachStyleShowsThePlanetsOfItsHouseOrSign) {
  const chart::HoroscopeModel model = test::WorkedModel();
  const ChartCells cells = BuildChartCells(model);
  for (std::size_t house = 0; house < chart::kHouses; ++house) {
    const std::string& rashi = chart::HouseText(model, house, HouseColumn::Rashi);
    const std::string planets =
        core::ReplaceAll(core::ReplaceAll(cells.North[house].Text, "*", ""), "~", "");
    EXPECT_EQ(planets,
              core::Trim(rashi + " " + chart::HouseText(model, house, HouseColumn::RcPlanets)));
    std::size_t shown = 0;
    for (const auto& row : cells.SouthRashi) {
      for (const core::Cell& cell : row) {
        shown += core::Contains(cell.Tag, "*") ? 1U : 0U;
      }
    }
    EXPECT_EQ(shown, 12U);
  }
  const auto ascendant =
      static_cast<std::size_t>(std::stoi(chart::HouseText(model, 0, HouseColumn::Rashi))) - 1;
  EXPECT_TRUE(cells.East[ascendant].Text.starts_with("Asc"));
}

TEST(ChartCells, TheAscendantIsTintedInBothSouthGridsAndTheMiddleStaysEmpty) {
  const ChartCells cells = BuildChartCells(test::WorkedModel());
  int tinted = 0;
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      const bool middle = (row == 1 || row == 2) && (column == 1 || column == 2);
      const SouthSignCell& rashi = cells.SouthRashi[row][column];
      EXPECT_EQ(rashi.Tag.empty(), middle);
      EXPECT_EQ(rashi.Background, cells.SouthKP[row][column].Background);
      tinted += rashi.Background == core::kAscendantTint ? 1 : 0;
      EXPECT_EQ(rashi.Sign == 0, middle);
      EXPECT_EQ(rashi.Sign, cells.SouthKP[row][column].Sign);
      if (!middle) {
        EXPECT_TRUE(cells.SouthKP[row][column].Text.starts_with("("));
      }
    }
  }
  EXPECT_EQ(tinted, 1);
  EXPECT_EQ(cells.SouthRashi[0][1].Sign, 1);
  EXPECT_EQ(cells.SouthKP[3][0].Sign, 9);
}

TEST(ChartCells, ATooltipPartsTheDirectionFromTheFactsOfItsSign) {
  chart::HoroscopeModel model = test::WorkedModel();
  core::Cell& rashi = model.HouseTable.At(2, HouseColumn::Rashi);
  rashi.Tag = "Gemini (60 to 89.99 | Air)";
  const ChartCells cells = BuildChartCells(model);
  EXPECT_TRUE(cells.North[2].Tooltip.starts_with("Gemini (60 to 89.99 | Air) | Direction: "));
  const auto sign = static_cast<std::size_t>(std::stoi(rashi.Text)) - 1;
  EXPECT_TRUE(cells.East[sign].Tooltip.starts_with("Direction: "));
  EXPECT_TRUE(cells.East[sign].Tooltip.ends_with(" | Gemini (60 to 89.99 | Air)"));
}

TEST(ChartCells, MarksStandBehindTheCodeCombustFirst) {
  chart::HoroscopeModel model = test::WorkedModel();
  const std::size_t mercury = chart::RowOf(chart::PlanetPlace::Mercury);
  model.PlanetTable.At(mercury, PlanetColumn::R).Text = "R";
  model.PlanetTable.At(mercury, PlanetColumn::C).Text = "C";
  const ChartCells cells = BuildChartCells(model);
  int marked = 0;
  for (const core::Cell& cell : cells.North) {
    marked += core::Contains(cell.Text, "ME*~") ? 1 : 0;
  }
  EXPECT_EQ(marked, 1);
}

}  // namespace
}  // namespace orvex::report
