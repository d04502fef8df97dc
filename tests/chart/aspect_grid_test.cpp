#include "chart/aspect_grid.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "support/model_builder.h"

namespace orvex::chart {
namespace {

using Texts = std::vector<std::string>;

const core::Row& RowOfGrid(const HoroscopeModel& model, GridRow row, std::size_t planet = 0) {
  return model.AspectGrid.Rows.at(static_cast<std::size_t>(row) + planet);
}

Texts TextsOfRow(const core::Row& row) {
  Texts texts;
  for (const core::Cell& cell : row.Cells) {
    texts.push_back(cell.Text);
  }
  return texts;
}

TEST(AspectGrid, HeadsTellTheSignsAsPublished) {
  HoroscopeModel model = test::WorkedModel();
  BuildAspectGrid(model, core::DefaultAspectBands());
  const core::Column& first = model.AspectGrid.Columns.at(0);
  EXPECT_EQ(first.Caption + first.Tooltip, "DirDirection");
  EXPECT_EQ(first.Width, 63);
  Texts captions;
  for (std::size_t sign = 1; sign <= 12; ++sign) {
    const core::Column& column = model.AspectGrid.Columns.at(sign);
    captions.push_back(column.Caption + ": " + column.Tooltip);
    EXPECT_TRUE(column.Centred && column.Width == 63);
  }
  EXPECT_EQ(captions,
            Texts({"E/ESE 6: E4, E5, E6", "WNW/NW: W6, W7, W8, N1", "NNW: N2, N3", "NNE: N6, N7",
                   "ENE: E2, E3", "N: N4, N5", "WSW: W2, W3", "SSW: S6, S7", "NE: N8, E1",
                   "SSE/S: S2, S3, S4, S5", "W: W4, W5", "ESE 7/SE: E7, E8, S1"}));
  EXPECT_EQ(TextsOfRow(RowOfGrid(model, GridRow::Zodiac)),
            Texts({"Zodiac", "Aries", "Taurus", "Gemini", "Cancer", "Leo", "Virgo", "Libra",
                   "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"}));
  EXPECT_EQ(RowOfGrid(model, GridRow::Zodiac).Cells[8].Tooltip, "Vrischika");
  EXPECT_EQ(TextsOfRow(RowOfGrid(model, GridRow::Owner)),
            Texts({"Owner", "Mars", "Venus", "Mercury", "Moon", "Sun", "Mercury", "Venus", "Mars",
                   "Jupiter", "Saturn", "Saturn", "Jupiter"}));
  EXPECT_EQ(TextsOfRow(RowOfGrid(model, GridRow::Element)),
            Texts({"Element", "Fire", "Earth", "Air", "Water", "Fire", "Earth", "Air", "Water",
                   "Fire", "Earth", "Air", "Water"}));
  EXPECT_EQ(TextsOfRow(RowOfGrid(model, GridRow::Modality)),
            Texts({"Modality", "Movable", "Fixed", "Dual", "Movable", "Fixed", "Dual", "Movable",
                   "Fixed", "Dual", "Movable", "Fixed", "Dual"}));
  EXPECT_EQ(TextsOfRow(RowOfGrid(model, GridRow::RashiNo)),
            Texts({"Rashi No.", "1 (M)", "2 (F)", "3 (M)", "4 (F)", "5 (M)", "6 (F)", "7 (M)",
                   "8 (F)", "9 (M)", "10 (F)", "11 (M)", "12 (F)"}));
  EXPECT_EQ(RowOfGrid(model, GridRow::RashiNo).Cells[12].Tag, "12");
}

TEST(AspectGrid, TheHouseRowTellsTheLastHouseOfASignOrElseTheSign) {
  test::CuspDegrees cusps = test::CuspsAt(4.5);
  cusps[0] = "4.5";
  HoroscopeModel model = test::BuildModel({{"Sun", "10.00", 1}}, cusps, 8);
  model.HouseTable.At(2, HouseColumn::Rashi).Text = "9";  // as the fourth; Scorpio has none
  BuildAspectGrid(model, core::DefaultAspectBands());
  const core::Row& row = RowOfGrid(model, GridRow::House);
  EXPECT_EQ(TextsOfRow(row),
            Texts({"House", "8", "9", "10", "11", "12", "1", "2", "8", "4", "5", "6", "7"}));
  struct {
    std::size_t sign;
    const char* tag;
    const char* tooltip;
  } const cases[] = {{1, "8", "214.50 degree(s)"},
                     {6, "1", "4.50 degree(s)"},
                     {8, "", ""},
                     {9, "4", "94.50 degree(s)"}};
  for (const auto& c : cases) {
    const core::Cell& cell = row.Cells.at(c.sign);
    EXPECT_EQ(cell.Tag, c.tag) << c.sign;
    EXPECT_EQ(cell.Tooltip, c.tooltip) << c.sign;
    EXPECT_TRUE(cell.Bold);
  }
  // Without a cusp there is no angle.
  EXPECT_EQ(TextsOfRow(RowOfGrid(model, GridRow::FirstPlanet)),
            Texts({"Sun", "204.50", "234.50", "264.50", "294.50", "324.50", "354.50", "24.50", "",
                   "84.50", "114.50", "144.50", "174.50"}));
}

TEST(AspectGrid, ThePlanetRowHoldsTheAngleForwardToTheCuspColouredByItsBand) {
  struct {
    const char* planet;
    const char* degree;
    const char* cusp;
    const char* angle;
    const char* color;
  } const cases[] = {{"Sun", "10.00", "100.00", "90.00", "FACACA"},
                     {"Sun", "0.00", "85.00", "85.00", "FACACA"},
                     {"Sun", "0.00", "84.99", "84.99", "FFFFFF"},
                     {"Sun", "10.00", "130.00", "120.00", "CAFACB"},
                     {"Sun", "350.00", "20.00", "30.00", "CAFACB"},
                     {"Sun", "20.00", "350.00", "330.00", "FFFFFF"},
                     {"Sun", "10.00", "10.00", "0.00", "FFFFFF"},
                     {"Sun", "10.01", "10.00", "359.99", "FFFFFF"},
                     {"Sun", "0.00", "360.00", "360.00", "FFFFFF"},
                     {"Sun", "5.00", "425.00", "60.00", "CAFACB"},  // above 360: what is over it
                     {"Sun", "10.00", "", "", ""},
                     {"Rahu", "10.00", "100.00", "90.00", ""},
                     {"Ketu", "10.00", "130.00", "120.00", ""}};
  for (const auto& c : cases) {
    test::CuspDegrees cusps = test::CuspsAt(15);
    cusps[0] = c.cusp;
    HoroscopeModel model = test::BuildModel({{c.planet, c.degree, 1}}, cusps);
    BuildAspectGrid(model, core::DefaultAspectBands());
    const core::Cell& cell = RowOfGrid(model, GridRow::FirstPlanet).Cells.at(1);
    EXPECT_EQ(cell.Text, c.angle) << c.degree << " to " << c.cusp;
    EXPECT_EQ(cell.Background, c.color) << c.degree << " to " << c.cusp;
  }
}

TEST(AspectGrid, PlanetsStandInTheOrderOfTheirTableWithTheirDirections) {
  HoroscopeModel model = test::WorkedModel();
  for (int run = 0; run < 2; ++run) {
    BuildAspectGrid(model, core::DefaultAspectBands());
    Texts planets;
    for (std::size_t row = 6; row < model.AspectGrid.Rows.size(); ++row) {
      const core::Cell& name = model.AspectGrid.Rows[row].Cells[0];
      planets.push_back(name.Text + " " + name.Tag);
      EXPECT_TRUE(name.Bold);
    }
    EXPECT_EQ(planets, Texts({"Ketu WSW", "Venus WNW/NW", "Sun NNE", "Moon NNW", "Mars ENE",
                              "Rahu E/ESE 6", "Jupiter NE", "Saturn W", "Mercury NNE"}));
  }
}

TEST(AspectGrid, DamagedTablesGiveAllHeadsAndARowForEveryPlanetThatIsLeft) {
  for (const std::size_t houses : {0U, 3U, 12U}) {
    for (const std::size_t planets : {0U, 1U, 6U}) {
      HoroscopeModel model = test::DamagedModel(houses, planets);
      EXPECT_NO_THROW(BuildAspectGrid(model, core::DefaultAspectBands()));
      EXPECT_EQ(model.AspectGrid.Rows.size(), 6 + planets);
      EXPECT_EQ(RowOfGrid(model, GridRow::House).Cells[12].Text, "12");
    }
  }
}

}  // namespace
}  // namespace orvex::chart
