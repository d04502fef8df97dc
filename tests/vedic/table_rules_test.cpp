// The tables of the side analyses against the classical rules that generate them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "support/test_home.h"
#include "vedic/birth_star.h"
#include "vedic/lal_kitab_years.h"
#include "vedic/lo_shu_tables.h"
#include "vedic/vastu_pads.h"
#include "vedic/vastu_plan.h"

namespace orvex::vedic {
namespace {

const core::ReferenceData& Reference() {
  static const core::ReferenceData reference =
      core::LoadReferenceData(core::Store::Open(test::TemplateStore()));
  return reference;
}

TEST(BirthStarRules, TheVarnaIsThatOfTheElementAndTheGanaThatOfTheStar) {
  const std::map<std::string, std::string> varnas = {
      {"Fire", "Kshatriya"}, {"Earth", "Vaishya"}, {"Air", "Shudra"}, {"Water", "Brahmin"}};
  const std::map<std::string, std::string> ganas = {
      {"D", "Devta"}, {"M", "Manushya"}, {"R", "Rakshasa"}};
  for (const core::SignRow& sign : Reference().Signs) {
    for (const core::StarRow& star : Reference().Stars) {
      EXPECT_EQ(VarnaGanaText(Reference(), sign.Zodiac, star.StarName),
                varnas.at(sign.Element) + " - " + ganas.at(star.Gana));
    }
  }
}

// Nadis run to and fro through the stars, rajjus up and down the body.
TEST(BirthStarRules, NadisRunToAndFroAndRajjusUpAndDown) {
  const char* const nadis[] = {"Adi", "Madhya", "Antya", "Antya", "Madhya", "Adi"};
  const char* const rajjus[] = {"Pada",   "Kati",  "Nabhi", "Kantha", "Shiro",
                                "Kantha", "Nabhi", "Kati",  "Pada"};
  for (std::size_t i = 0; i < 27; ++i) {
    const std::string& star = Reference().Stars[i].StarName;
    EXPECT_TRUE(NadiYoniText(star).starts_with(std::string(nadis[i % 6]) + " - ")) << star;
    EXPECT_TRUE(VasyaRajjuText("Leo", 5, 130, star).ends_with(std::string(" - ") + rajjus[i % 9]))
        << star;
  }
}

// As printed star by star from Ashwini on.
TEST(BirthStarRules, EveryStarHasItsAnimal) {
  const char* const yonis[] = {"Horse",   "Elephant", "Sheep",    "Serpent", "Serpent", "Dog",
                               "Cat",     "Sheep",    "Cat",      "Rat",     "Rat",     "Cow",
                               "Buffalo", "Tiger",    "Buffalo",  "Tiger",   "Deer",    "Deer",
                               "Dog",     "Monkey",   "Mongoose", "Monkey",  "Lion",    "Horse",
                               "Lion",    "Cow",      "Elephant"};
  for (std::size_t i = 0; i < 27; ++i) {
    const std::string& star = Reference().Stars[i].StarName;
    EXPECT_TRUE(core::Contains(NadiYoniText(star), std::string(" - ") + yonis[i] + " (")) << star;
  }
}

// A swap of two houses of a year, or of two years, changes the sum of its twelve years. The sums
// are those of the table as it stands.
TEST(LalKitabRules, EachCycleOfTwelveYearsKeepsItsCheckSum) {
  const std::size_t sums[] = {37873,  110923, 183989, 257339, 330132,
                              403222, 475664, 550610, 622630, 695821};
  for (std::size_t cycle = 0; cycle < 10; ++cycle) {
    std::size_t sum = 0;
    for (std::size_t year = cycle * 12; year < cycle * 12 + 12; ++year) {
      for (std::size_t house = 0; house < 12; ++house) {
        sum += (year + 1) * (house + 1) * static_cast<std::size_t>(kLalKitabYears[year][house]);
      }
    }
    EXPECT_EQ(sum, sums[cycle]) << "years from " << cycle * 12 + 1;
  }
}

// Ten times in 120 years the first house moves to each house, in one order.
TEST(LalKitabRules, TheFirstHouseGoesThroughOneOrderTenTimes) {
  const int order[] = {1, 4, 9, 3, 11, 5, 7, 2, 12, 10, 8, 6};
  for (std::size_t year = 0; year < 120; ++year) {
    EXPECT_EQ(kLalKitabYears[year][0], order[year % 12]) << year + 1;
  }
}

// The sixteen directions are 22.5 degrees apart; each name stands beside the slice round its own.
TEST(VastuRules, EachDirectionOfThePlanHasTheSliceRoundItsOwnDegree) {
  const std::vector<std::string> compass = {"North", "NNE", "NE",    "ENE", "East", "ESE",
                                            "SE",    "SSE", "South", "SSW", "SW",   "WSW",
                                            "West",  "WNW", "NW",    "NNW"};
  std::set<std::string> seen;
  for (const PlanSide side : {PlanSide::North, PlanSide::East, PlanSide::South, PlanSide::West}) {
    for (const PlanSector& sector : SectorsOfSide(side)) {
      const auto place = std::find(compass.begin(), compass.end(), sector.Direction);
      ASSERT_NE(place, compass.end()) << sector.Direction;
      const double end =
          std::fmod(static_cast<double>(place - compass.begin()) * 22.5 + 11.25, 360);
      EXPECT_TRUE(core::Contains(sector.Tooltip, " to " + core::DoubleText(end) + " degrees"))
          << sector.Direction << " " << sector.Tooltip;
      seen.insert(sector.Direction);
    }
  }
  EXPECT_EQ(seen.size(), 16U);
}

TEST(LoShuRules, TheSquareIsMagicAndOppositeNumbersHaveOppositeDirections) {
  int sums[8] = {};
  for (std::size_t i = 0; i < 9; ++i) {
    const int number = static_cast<int>(kLoShuCells[i].Number);
    sums[i / 3] += number;
    sums[3 + i % 3] += number;
    sums[6] += i % 4 == 0 ? number : 0;
    sums[7] += i == 2 || i == 4 || i == 6 ? number : 0;
  }
  for (const int sum : sums) {
    EXPECT_EQ(sum, 15);
  }
}

}  // namespace
}  // namespace orvex::vedic
