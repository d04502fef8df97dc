#include "chart/combustion.h"

#include <gtest/gtest.h>

#include "support/model_builder.h"

namespace orvex::chart {
namespace {

TEST(Combustion, EachPlanetHasItsOrbOnBothSidesOfTheSun) {
  struct {
    const char* planet;
    bool retrograde;
    float orb;
  } const cases[] = {{"Moon", false, 12},   {"Moon", true, 12},    {"Mercury", false, 14},
                     {"Mercury", true, 12}, {"Venus", false, 10},  {"Venus", true, 8},
                     {"Mars", false, 17},   {"Mars", true, 17},    {"Jupiter", false, 11},
                     {"Jupiter", true, 11}, {"Saturn", false, 15}, {"Saturn", true, 15}};
  for (const auto& c : cases) {
    const auto at = [&c](float degree) {
      return IsCombust(c.planet, c.retrograde, "100.00", degree);
    };
    EXPECT_TRUE(at(100 - c.orb) && at(100) && at(100 + c.orb)) << c.planet << c.retrograde;
    EXPECT_FALSE(at(99.99F - c.orb) || at(100.01F + c.orb)) << c.planet << c.retrograde;
  }
  for (const char* planet : {"Sun", "Rahu", "Ketu", "", "moon"}) {
    EXPECT_FALSE(IsCombust(planet, false, "100.00", 100)) << planet;
  }
}

TEST(Combustion, AWindowOverTheFirstPointFollowsTheArithmeticNotTheSky) {
  struct {
    const char* sun;
    float moon;
    bool combust;
  } const cases[] = {
      {"5.00", 5, false},                                                 // 353 to 17 holds nothing
      {"5.00", 355, false}, {"5.00", 17, false},       {"5", 355, true},  // 353 to 377
      {"5", 353, true},     {"5", 352.99F, false},     {"5", 4, false},
      {"12.00", 0, true},                                                     // 0 to 24
      {"12.00", 24, true},  {"11.99", 0, false},                              // 359.99 to 23.99
      {"11.99", 12, false}, {"350.00", 359.99F, true}, {"350.00", 1, false},  // 338 to 362
      {"350.00", 338, true}};
  for (const auto& c : cases) {
    EXPECT_EQ(IsCombust("Moon", false, c.sun, c.moon), c.combust) << c.sun << " " << c.moon;
  }
}

TEST(Combustion, MarksFollowTheTableOfThePlanets) {
  const std::vector<test::PlanetAt> planets = {
      {"Ketu", "100.00", 1},   {"Venus", "109.00", 1, "", "", true},
      {"Sun", "100.00", 1},    {"Moon", "112.00", 1},
      {"Mars", "117.01", 1},   {"Rahu", "280.00", 1},
      {"Jupiter", "89.00", 1}, {"Saturn", "84.99", 1},
      {"Mercury", "87.00", 1}};
  const std::vector<std::string> wanted = {"", "", "", "C", "", "", "C", "", "C"};
  HoroscopeModel model = test::BuildModel(planets);
  model.PlanetTable.At(RowOf(PlanetPlace::Mars), PlanetColumn::C).Text = "C";  // an earlier mark
  MarkCombust(model);
  EXPECT_EQ(test::TextsOf(model.PlanetTable, PlanetColumn::C), wanted);
  model.PlanetTable.At(RowOf(PlanetPlace::Venus), PlanetColumn::R).Text.clear();
  model.PlanetTable.At(RowOf(PlanetPlace::Mercury), PlanetColumn::R).Text = "R";
  model.PlanetTable.At(RowOf(PlanetPlace::Moon), PlanetColumn::Degree).Text.clear();
  model.PlanetTable.At(RowOf(PlanetPlace::Moon), PlanetColumn::C).Text.clear();
  MarkCombust(model);
  EXPECT_EQ(test::TextsOf(model.PlanetTable, PlanetColumn::C),
            std::vector<std::string>({"", "C", "", "", "", "", "C", "", ""}));
}

TEST(Combustion, WithoutASunNothingIsMarked) {
  for (const std::size_t planets : {0U, 2U, 3U}) {
    HoroscopeModel model = test::DamagedModel(12, planets);
    EXPECT_NO_THROW(MarkCombust(model));
    EXPECT_EQ(test::TextsOf(model.PlanetTable, PlanetColumn::C), std::vector<std::string>(planets));
  }
}

}  // namespace
}  // namespace orvex::chart
