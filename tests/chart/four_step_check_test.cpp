#include "chart/four_step_check.h"

#include <gtest/gtest.h>

#include "support/model_builder.h"

namespace orvex::chart {
namespace {

using test::TextsOf;
using Texts = std::vector<std::string>;

TEST(FourStepTable, APlanetGivesItsHouseAndTheEmptyHousesItOwns) {
  HoroscopeModel model = test::WorkedModel();
  for (int run = 0; run < 2; ++run) {
    BuildFourStep(model);
    // A cusp exactly 5 degrees away, as those of Ketu, Venus, the Sun, Mars and Rahu, gives no
    // mark.
    EXPECT_EQ(TextsOf(model.FourStepTable, SignificationColumn::Sig),
              Texts({"7", "2", "4", "3 3/C", "5 8", "1", "9 12", "11 10", "4 6 4/C"}));
    EXPECT_EQ(TextsOf(model.FourStepTable, SignificationColumn::Planet),
              Texts({"KE", "VE", "SU", "MO", "MA", "RA", "JU", "SA", "ME"}));
    EXPECT_EQ(model.FourStepTable.At(8, SignificationColumn::Sig).Tag, "4 6");
    EXPECT_EQ(model.FourStepTable.At(4, SignificationColumn::Degree).Text, "130.00");
  }
}

TEST(FourStepTable, AHouseIsEmptyByItsCuspsNotByTheSigns) {
  struct {
    const char* mercury;
    int house;
    const char* sun;
    int sunHouse;
    const char* sig;
  } const cases[] = {{"70.00", 2, "160.00", 5, "2 3 6"},  // signs of both houses hold planets
                     {"20.00", 3, "10.00", 1, "3 6"},     // it stands in its own house
                     {"20.00", 1, "10.00", 6, "1 3"}};
  for (const auto& c : cases) {
    HoroscopeModel model =
        test::BuildModel({{"Mercury", c.mercury, c.house}, {"Sun", c.sun, c.sunHouse}});
    BuildFourStep(model);
    EXPECT_EQ(model.FourStepTable.At(0, SignificationColumn::Sig).Text, c.sig);
  }
}

TEST(FourStepTable, TheMarkIsTheLastCuspNearerThan5DegreesAndDoesNotWrap) {
  struct {
    const char* planet;
    const char* cusp1;
    const char* cusp2;
    const char* cusp12;
    const char* mark;
  } const cases[] = {{"10.00", "14.99", "40.00", "340.00", " 1/C"},
                     {"10.00", "15.00", "40.00", "340.00", ""},
                     {"10.00", "5.01", "40.00", "340.00", " 1/C"},
                     {"10.00", "5.00", "40.00", "340.00", ""},
                     {"10.00", "8.00", "14.00", "340.00", " 2/C"},  // the nearer one is the first
                     {"10.00", "10.00", "9.00", "10.01", " 12/C"},
                     {"358.00", "2.00", "40.00", "340.00", ""},
                     {"2.00", "100.00", "40.00", "358.00", ""},
                     {"358.00", "2.00", "40.00", "353.01", " 12/C"},
                     {"10.00", "", "9.00", "x", " 2/C"}};  // cusps that are no degrees
  for (const auto& c : cases) {
    test::CuspDegrees cusps = test::CuspsAt(15);
    cusps[0] = c.cusp1;
    cusps[1] = c.cusp2;
    cusps[11] = c.cusp12;
    HoroscopeModel model = test::BuildModel({{"Rahu", c.planet, 6}}, cusps);
    BuildFourStep(model);
    const core::Cell& sig = model.FourStepTable.At(0, SignificationColumn::Sig);
    EXPECT_EQ(sig.Text, std::string("6") + c.mark) << c.planet << " " << c.cusp1;
    EXPECT_EQ(sig.Tag, "6");
  }
}

TEST(FourStepCheck, StepsOfTheWorkedChart) {
  HoroscopeModel model = test::WorkedModel();
  BuildFourStep(model);
  // Two blanks stand between a node and the lord of its sign.
  const Texts wanted[] = {{"Ketu", "", "VE (2)", "RA", "MO (3 3/C)"},
                          {"Venus", "2", "VE (2)", "SU", "SA (11 10)"},
                          {"Sun", "", "SA (11 10)", "KE", "VE (2)"},
                          {"Moon", "", "RA (1)  MA (5 8)", "MO", "RA (1)  MA (5 8)"},
                          {"Mars", "5 8", "KE (7)  VE (2)", "JU", "KE (7)  VE (2)"},
                          {"Rahu", "", "MO (3 3/C)", "MA (5 8)", "KE (7)  VE (2)"},
                          {"Jupiter", "", "KE (7)  VE (2)", "SA", "JU (9 12)"},
                          {"Saturn", "", "JU (9 12)", "VE (2)", "VE (2)"},
                          {"Mercury", "4 6 4/C", "SU (4)", "MA (5 8)", "KE (7)  VE (2)"}};
  ASSERT_EQ(model.FourStepRows.Rows.size(), std::size(wanted));
  for (std::size_t row = 0; row < std::size(wanted); ++row) {
    Texts texts;
    for (const core::Cell& cell : model.FourStepRows.Rows[row].Cells) {
      texts.push_back(cell.Text);
    }
    EXPECT_EQ(texts, wanted[row]);
  }
}

TEST(FourStepCheck, TheAgentOfANodeShowsNoCuspMarkAndItsStarLordDoes) {
  HoroscopeModel model = test::WorkedModel();
  model.PlanetTable.At(RowOf(PlanetPlace::Mars), PlanetColumn::Degree).Text = "135.00";
  model.PlanetTable.At(RowOf(PlanetPlace::Rahu), PlanetColumn::Degree).Text = "15.50";
  BuildFourStep(model);
  EXPECT_EQ(model.FourStepRows.At(RowOf(PlanetPlace::Moon), FourStepColumn::Step2).Text,
            "RA (1 1/C)  MA (5 8)");
  EXPECT_EQ(model.FourStepRows.At(RowOf(PlanetPlace::Mercury), FourStepColumn::Step3).Text,
            "MA (5 8 5/C)");
  model.PlanetTable.At(RowOf(PlanetPlace::Rahu), PlanetColumn::SignLord).Text.clear();
  BuildFourStep(model);
  EXPECT_EQ(model.FourStepRows.At(RowOf(PlanetPlace::Moon), FourStepColumn::Step4).Text,
            "RA (1 1/C)");
}

TEST(FourStepCheck, ALordOrRowThatIsMissingCostsOnlyItsOwnSteps) {
  HoroscopeModel model = test::WorkedModel();
  core::Table& planets = model.PlanetTable;
  planets.At(RowOf(PlanetPlace::Mars), PlanetColumn::SubLord).Text = "Pluto (1)";
  planets.At(RowOf(PlanetPlace::Mercury), PlanetColumn::StarLord).Text.clear();
  planets.At(RowOf(PlanetPlace::Ketu), PlanetColumn::Degree).Text.clear();
  BuildFourStep(model);
  EXPECT_EQ(model.FourStepRows.At(4, FourStepColumn::Step2).Text, "KE (7)  VE (2)");
  EXPECT_EQ(model.FourStepRows.At(4, FourStepColumn::Step3).Text, "PL");
  EXPECT_EQ(model.FourStepRows.At(4, FourStepColumn::Step4).Text, "");
  EXPECT_EQ(model.FourStepRows.At(8, FourStepColumn::Step1).Text, "4 6 4/C");
  EXPECT_EQ(model.FourStepRows.At(8, FourStepColumn::Step2).Text, "");
  EXPECT_EQ(model.FourStepRows.At(8, FourStepColumn::Step3).Text, "MA (5 8)");
  const core::Table before = model.FourStepRows;
  FourStepCheck(model, "Pluto", 0);
  EXPECT_EQ(TextsOf(model.FourStepRows, FourStepColumn::Step2),
            TextsOf(before, FourStepColumn::Step2));
  for (const std::size_t houses : {0U, 3U, 12U}) {
    for (const std::size_t rows : {0U, 1U, 6U, 9U}) {
      HoroscopeModel damaged = test::DamagedModel(houses, rows);
      damaged.CuspTable.Rows.clear();
      EXPECT_NO_THROW(BuildFourStep(damaged));
      EXPECT_EQ(damaged.FourStepTable.Rows.size(), rows);
      EXPECT_EQ(damaged.FourStepRows.Rows.size(), rows);
    }
  }
}

}  // namespace
}  // namespace orvex::chart
