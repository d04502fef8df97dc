#include "chart/significators.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "support/model_builder.h"

namespace orvex::chart {
namespace {

using test::TextsOf;
using Texts = std::vector<std::string>;

std::size_t Row(PlanetPlace place) { return RowOf(place); }

void SetLord(HoroscopeModel& model, PlanetPlace planet, PlanetColumn column, const char* lord) {
  core::Cell& cell = model.PlanetTable.At(Row(planet), column);
  cell.Tag = lord;
  cell.Text = WithHouses(model, lord);
}

TEST(CuspSignificators, OccupantsAndOwnersStandAheadOfThoseInTheirStars) {
  HoroscopeModel model = test::WorkedModel();
  const Texts wanted = {"MA RA MO",    "VE KE", "MO ME RA", "SU MO ME RA", "SU MA ME", "ME",
                        "KE VE MA JU", "MA",    "JU SA",    "SA SU",       "SA SU",    "JU SA"};
  for (int run = 0; run < 2; ++run) {
    CuspSignificators(model);
    EXPECT_EQ(TextsOf(model.CuspTable, CuspColumn::PlanetsSig), wanted);
  }
}

TEST(CuspSignificators, AnUnreadablePlaceOrStarCostsOnlyItsOwnHouses) {
  struct {
    PlanetColumn column;
    const char* text;
    Texts lost;  // of Mars: what stands in its house, its own houses, its star lord's house
  } const cases[] = {{PlanetColumn::In, "", {"SU ME", "MA", "KE VE MA JU"}},
                     {PlanetColumn::In, "13", {"SU ME", "MA", "KE VE MA JU"}},
                     {PlanetColumn::In, "0", {"SU ME", "MA", "KE VE MA JU"}},
                     {PlanetColumn::Owner, "x 8", {"SU MA ME", "MA", "KE VE MA JU"}},
                     {PlanetColumn::Owner, "", {"SU MA ME", "", "KE VE MA JU"}},
                     {PlanetColumn::StarLord, "Ketu", {"SU MA ME", "MA", "KE VE JU"}},
                     {PlanetColumn::StarLord, "Ketu ()", {"SU MA ME", "MA", "KE VE JU"}},
                     {PlanetColumn::StarLord, "", {"SU MA ME", "MA", "KE VE JU"}}};
  for (const auto& c : cases) {
    HoroscopeModel model = test::WorkedModel();
    model.PlanetTable.At(Row(PlanetPlace::Mars), c.column).Text = c.text;
    CuspSignificators(model);
    const Texts cusps = TextsOf(model.CuspTable, CuspColumn::PlanetsSig);
    EXPECT_EQ(Texts({cusps[4], cusps[7], cusps[6]}), c.lost) << c.text;
    EXPECT_EQ(cusps[9], "SA SU") << c.text;
  }
}

TEST(NadiSignificators, ListsOfTheWorkedChart) {
  HoroscopeModel model = test::WorkedModel();
  NadiSignificators(model);
  const std::string ra = "RA (1 3 4 5 8 9 10 11 12)";
  EXPECT_EQ(TextsOf(model.NadiTable, NadiColumn::Planet),
            Texts({"KE (2 7)", "VE (2 7)", "SU (4 5)", "MO (3 4)", "MA (1 5 8)", ra, "JU (9 12)",
                   "SA (10 11)", "ME (3 4 6)"}));
  EXPECT_EQ(TextsOf(model.NadiTable, NadiColumn::StarLord),
            Texts({"VE (2 7)", "VE (2 7)", "SA (10 11)", ra, "KE (2 7)", "MO (3 4)", "KE (2 7)",
                   "JU (9 12)", "SU (4 5)"}));
  EXPECT_EQ(TextsOf(model.NadiTable, NadiColumn::SubLord),
            Texts({ra, "SU (4 5)", "KE (2 7)", "MO (3 4)", "JU (9 12)", "MA (1 5 8)", "SA (10 11)",
                   "VE (2 7)", "MA (1 5 8)"}));
  EXPECT_EQ(model.NadiTable.Rows[5].Tag, "RA");
  EXPECT_EQ(model.NadiTable.At(5, NadiColumn::Planet).Tag, "1 3 4 5 8 9 10 11 12");
  Texts times;
  for (const core::Cell& cell : model.NadiHouseTimes.Rows.at(0).Cells) {
    times.push_back(cell.Text);
  }
  EXPECT_EQ(times, Texts({"Times", "2", "2", "3", "4", "3", "1", "2", "2", "2", "2", "2", "2"}));
}

// Rahu in the first house, Ketu in the seventh, the others where they reach neither.
HoroscopeModel ModelOfNodes() {
  HoroscopeModel model = test::WorkedModel();
  for (std::size_t row = 0; row < kHouses; ++row) {
    model.HouseTable.At(row, HouseColumn::RcPlanets).Text.clear();
  }
  model.HouseTable.At(0, HouseColumn::RcPlanets).Text = "RA";
  model.HouseTable.At(6, HouseColumn::RcPlanets).Text = "KE";
  SetLord(model, PlanetPlace::Rahu, PlanetColumn::SignLord, "Sun");
  return model;
}

TEST(NadiSignificators, ANodeTakesTheHousesOfItsAgents) {
  struct {
    const char* code;
    std::size_t house;
    const char* rahu;
    const char* ketu;
  } const cases[] = {{"", 1, "1 3 4 5", "2 7"},  // sign and star lord, not the other node
                     {"VE", 1, "1 2 3 4 5 7", "2 7"},     {"ME", 1, "1 3 4 5 6", "2 3 4 6 7"},
                     {"ME", 7, "1 3 4 5 6", "2 3 4 6 7"}, {"ME", 11, "1 3 4 5", "2 7"},
                     {"SA", 11, "1 3 4 5 10 11", "2 7"},  // 3rd
                     {"SA", 4, "1 3 4 5 10 11", "2 7"},   // 10th
                     {"SA", 5, "1 3 4 5", "2 7 10 11"},   // 3rd
                     {"SA", 10, "1 3 4 5", "2 7 10 11"},  // 10th to the seventh house
                     {"SA", 9, "1 3 4 5", "2 7"},         // 5th is Jupiter's
                     {"MA", 10, "1 3 4 5 8", "2 7"},      // 4th
                     {"MA", 6, "1 3 4 5 8", "2 7"},       // 8th
                     {"MA", 4, "1 3 4 5", "1 2 5 7 8"},   // 4th
                     {"MA", 11, "1 3 4 5", "2 7"},        // 3rd is Saturn's
                     {"JU", 9, "1 3 4 5 9 12", "2 7"},    // 5th
                     {"JU", 5, "1 3 4 5 9 12", "2 7"},    // 9th
                     {"JU", 11, "1 3 4 5", "2 7 9 12"},   // 9th
                     {"JU", 10, "1 3 4 5", "2 7"}};       // 4th is Mars's
  for (const auto& c : cases) {
    HoroscopeModel model = ModelOfNodes();
    std::string& planets = model.HouseTable.At(c.house - 1, HouseColumn::RcPlanets).Text;
    planets = core::Trim(planets + " " + c.code);
    NadiSignificators(model);
    EXPECT_EQ(model.NadiTable.At(Row(PlanetPlace::Rahu), NadiColumn::Planet).Tag, c.rahu)
        << c.code << c.house;
    EXPECT_EQ(model.NadiTable.At(Row(PlanetPlace::Ketu), NadiColumn::Planet).Tag, c.ketu)
        << c.code << c.house;
    EXPECT_EQ(model.NadiTable.At(Row(PlanetPlace::Sun), NadiColumn::Planet).Tag, "4 5");
  }
}

TEST(NadiSignificators, ANodeWithoutAnOppositeHouseOrALordKeepsItsOtherAgents) {
  HoroscopeModel model = ModelOfNodes();
  model.HouseTable.At(0, HouseColumn::RcPlanets).Text = "RA JU";
  model.HouseTable.At(6, HouseColumn::RcPlanets).Text = "VE KE";
  model.HouseTable.At(0, HouseColumn::Asp7).Text.clear();
  SetLord(model, PlanetPlace::Rahu, PlanetColumn::StarLord, "");
  NadiSignificators(model);
  EXPECT_EQ(model.NadiTable.At(Row(PlanetPlace::Rahu), NadiColumn::Planet).Tag, "1 4 5 9 12");
  model.HouseTable.At(0, HouseColumn::RcPlanets).Text.clear();
  NadiSignificators(model);
  EXPECT_EQ(model.NadiTable.At(Row(PlanetPlace::Rahu), NadiColumn::Planet).Tag, "1 4 5");
}

TEST(NadiSignificators, AHouseCountsEachPlanetOnce) {
  HoroscopeModel model = test::WorkedModel();
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    model.PlanetTable.At(row, PlanetColumn::Owner).Text = "12 2 2 12";
  }
  NadiSignificators(model);
  const core::Row& times = model.NadiHouseTimes.Rows.at(0);
  EXPECT_EQ(times.Cells[2].Text, "9");
  EXPECT_EQ(times.Cells[12].Text, "9");
  EXPECT_EQ(model.NadiTable.At(Row(PlanetPlace::Saturn), NadiColumn::Planet).Text, "SA (2 11 12)");
}

TEST(PlanetLevels, LevelsAndWhatStandsInStarsAndSubsOfTheWorkedChart) {
  HoroscopeModel model = test::WorkedModel();
  const char* cuspLords[][2] = {{"Ketu", "Moon"},    {"Venus", "Moon"},     {"Sun", "Sun"},
                                {"Moon", "Sun"},     {"Mars", "Mars"},      {"Rahu", "Mars"},
                                {"Jupiter", "Mars"}, {"Saturn", "Jupiter"}, {"Mercury", "Jupiter"},
                                {"Ketu", "Jupiter"}, {"Venus", "Jupiter"},  {"Sun", "Ketu"}};
  for (std::size_t row = 0; row < kHouses; ++row) {
    model.CuspTable.At(row, CuspColumn::StarLord).Text = cuspLords[row][0];
    model.CuspTable.At(row, CuspColumn::SubLord).Text = cuspLords[row][1];
  }
  PlanetLevels(model);
  const Texts wanted[] = {{"Ketu", "T", "2", "7", "2 7", "", "1 10 (MA JU)", "12 (SU)"},
                          {"Venus", "S", "2", "2", "2 7", "2 7", "2 11 (KE VE)", "(SA)"},
                          {"Sun", "T", "11", "4", "10 11", "5", "3 12 (ME)", "3 4 (VE)"},
                          {"Moon", "T", "1", "3", "", "4", "4 (RA)", "1 2 (MO)"},
                          {"Mars", "U", "7", "5", "", "1 8", "5", "5 6 7 (RA ME)"},
                          {"Rahu", "T", "3", "1", "4", "", "6 (MO)", "(KE)"},
                          {"Jupiter", "T", "7", "9", "", "9 12", "7 (SA)", "8 9 10 11 (MA)"},
                          {"Saturn", "T", "9", "11", "9 12", "10 11", "8 (SU)", "(JU)"},
                          {"Mercury", "U", "4", "4", "5", "3 6", "9", ""}};
  ASSERT_EQ(model.PlanetLevels.Rows.size(), std::size(wanted));
  for (std::size_t row = 0; row < std::size(wanted); ++row) {
    Texts texts;
    for (const core::Cell& cell : model.PlanetLevels.Rows[row].Cells) {
      texts.push_back(cell.Text);
    }
    EXPECT_EQ(texts, wanted[row]);
  }
  EXPECT_EQ(model.PlanetLevels.At(4, LevelColumn::Stu).Tooltip, "Untenanted");
}

TEST(Significators, DamagedTablesGiveARowForEveryPlanetThatIsLeft) {
  for (const std::size_t houses : {0U, 1U, 5U, 12U}) {
    for (const std::size_t planets : {0U, 1U, 6U, 9U}) {
      HoroscopeModel model = test::DamagedModel(houses, planets);
      EXPECT_NO_THROW(CuspSignificators(model));
      EXPECT_NO_THROW(NadiSignificators(model));
      EXPECT_NO_THROW(PlanetLevels(model));
      EXPECT_EQ(model.NadiTable.Rows.size(), planets);
      EXPECT_EQ(model.PlanetLevels.Rows.size(), planets);
      EXPECT_EQ(model.NadiHouseTimes.Rows.size(), 1U);
    }
  }
}

}  // namespace
}  // namespace orvex::chart
