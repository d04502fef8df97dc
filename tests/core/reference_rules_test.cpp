// The reference tables against the classical rules that generate them.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/exact_numbers.h"
#include "core/reference_data.h"
#include "core/text.h"
#include "core/zodiac_division.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

const ReferenceData& Reference() {
  static const ReferenceData reference = LoadReferenceData(Store::Open(test::TemplateStore()));
  return reference;
}

TEST(ReferenceRules, GunasCountTheStarsInThrees) {
  const char* const gunas[] = {"Rajas", "Tamas", "Sattva"};
  ASSERT_EQ(Reference().Stars.size(), 27U);
  for (std::size_t star = 0; star < 27; ++star) {
    const StarRow& row = Reference().Stars[star];
    EXPECT_EQ(row.Sequence, static_cast<int>(star) + 1);
    EXPECT_EQ(row.Guna1, gunas[star / 9]) << row.StarName;
    EXPECT_EQ(row.Guna2, gunas[star / 3 % 3]) << row.StarName;
    EXPECT_EQ(row.Guna3, gunas[star % 3]) << row.StarName;
  }
}

TEST(ReferenceRules, NineStarsHaveEachGanaAndTheLordsRunThroughTheCycleThreeTimes) {
  // Deva, Manushya and Rakshasa from Ashwini on, as printed in any almanac.
  const std::string ganas = "DMRMDMDDRRMMDRDRDRRMMDRRMMD";
  const char* const lords[] = {"Ketu", "Venus",   "Sun",    "Moon",   "Mars",
                               "Rahu", "Jupiter", "Saturn", "Mercury"};
  std::map<std::string, int> counts;
  for (std::size_t star = 0; star < 27; ++star) {
    const StarRow& row = Reference().Stars.at(star);
    EXPECT_EQ(row.Gana, ganas.substr(star, 1)) << row.StarName;
    EXPECT_EQ(row.StarLord, lords[star % 9]) << row.StarName;
    ++counts[row.Gana];
    EXPECT_TRUE(row.Gender == "M" || row.Gender == "F" || row.Gender == "N");
  }
  for (const auto& [gana, count] : counts) {
    EXPECT_EQ(count, 9) << gana;
  }
}

TEST(ReferenceRules, SignsTurnThroughElementsQualitiesAndGenders) {
  const char* const elements[] = {"Fire", "Earth", "Air", "Water"};
  const char* const qualities[] = {"M", "F", "D"};
  ASSERT_EQ(Reference().Signs.size(), 12U);
  for (std::size_t i = 0; i < 12; ++i) {
    const SignRow& sign = Reference().Signs[i];
    EXPECT_EQ(sign.Rashi, static_cast<int>(i) + 1);
    EXPECT_EQ(sign.Element, elements[i % 4]) << sign.Zodiac;
    EXPECT_EQ(sign.SignType, qualities[i % 3]) << sign.Zodiac;
    EXPECT_EQ(sign.Gender, i % 2 == 0 ? "M" : "F") << sign.Zodiac;
    EXPECT_EQ(sign.StartDegree, std::to_string(30 * i));
    EXPECT_EQ(sign.EndDegree, std::to_string(30 * i + 30));
    EXPECT_EQ(sign.Fruitful, sign.Element == "Water") << sign.Zodiac;
    EXPECT_EQ(sign.Mute, sign.Element == "Water") << sign.Zodiac;
    EXPECT_EQ(sign.Barren, i == 2 || i == 4 || i == 5) << sign.Zodiac;  // Gemini, Leo, Virgo
    EXPECT_EQ(sign.Voice, i == 2 || i == 5 || i == 6 || i == 8 || i == 10) << sign.Zodiac;
  }
}

// Every planet rules its signs and falls in the sign opposite the one of its exaltation.
TEST(ReferenceRules, APlanetFallsOppositeItsExaltation) {
  const auto& signs = Reference().Signs;
  const std::pair<const char*, std::size_t> exaltations[] = {
      {"Sun", 1},    {"Moon", 2},  {"Jupiter", 4}, {"Mercury", 6},
      {"Saturn", 7}, {"Mars", 10}, {"Venus", 12}};
  for (const auto& [planet, sign] : exaltations) {
    EXPECT_EQ(signs.at(sign - 1).ExaltedPlanet, planet);
    EXPECT_EQ(signs.at((sign + 5) % 12).DebilitatedPlanet, planet);
  }
  // Rulers mirror about the border of Cancer and Leo but for the two lights.
  for (std::size_t step = 1; step <= 5; ++step) {
    EXPECT_EQ(signs.at((3 + 12 - step) % 12).RulingPlanet, signs.at(4 + step).RulingPlanet);
  }
  EXPECT_EQ(signs[3].RulingPlanet, "Moon");
  EXPECT_EQ(signs[4].RulingPlanet, "Sun");
  EXPECT_EQ(signs[0].RulingPlanet, "Mars");
  EXPECT_EQ(signs[1].RulingPlanet, "Venus");
  EXPECT_EQ(signs[2].RulingPlanet, "Mercury");
  EXPECT_EQ(signs[8].RulingPlanet, "Jupiter");
  EXPECT_EQ(signs[9].RulingPlanet, "Saturn");
}

TEST(ReferenceRules, EachSignSortsTheSevenPlanetsIntoFriendsFoesAndNeutrals) {
  for (const SignRow& sign : Reference().Signs) {
    std::multiset<std::string> named;
    for (const std::string* list :
         {&sign.BeneficPlanets, &sign.MaleficPlanets, &sign.NeutralPlanets}) {
      for (const std::string& name : Split(*list, ',')) {
        named.insert(Trim(name));
      }
    }
    for (const char* planet : {"Sun", "Moon", "Mercury", "Venus", "Mars", "Jupiter", "Saturn"}) {
      EXPECT_LE(named.count(planet), 1U) << sign.Zodiac << " " << planet;
    }
  }
}

TEST(ReferenceRules, DashaYearsAre120AndNumerologyNumbersAre1To9) {
  int years = 0;
  std::set<int> numbers;
  std::set<int> places;
  for (const PlanetInfo& planet : Reference().Planets) {
    years += planet.DashaYears;
    numbers.insert(planet.AstroNumber);
    places.insert(planet.DashaSequence);
    EXPECT_EQ(planet.PlanetCode, UpperCase(planet.PlanetName.substr(0, 2)));
  }
  EXPECT_EQ(years, 120);
  EXPECT_EQ(numbers, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(places, numbers);
}

// What is read back from the store is what the divisions wrote, field by field.
TEST(ReferenceRules, RowsOfTheDivisionsAreReadIntoTheirOwnFields) {
  const ReferenceData& reference = Reference();
  for (const PadaRow& pada : reference.Padas) {
    const double before = 30.0 * (pada.Rashi - 1);
    EXPECT_NEAR(pada.StartCDegree - pada.StartDegree, before, 1e-9);
    EXPECT_NEAR(pada.EndCDegree - pada.EndDegree, before, 1e-9);
    EXPECT_NEAR(pada.EndCDegree - pada.StartCDegree, 10.0 / 3, 0.02);
    EXPECT_NEAR(pada.StartCDegree, ((pada.StarId - 1) * 4 + pada.Pada - 1) * 10.0 / 3, 0.01);
  }
  for (const SubRow& sub : reference.Subs) {
    EXPECT_LT(sub.AscPointBegin, sub.AscPointEnd);
    const auto sign = static_cast<std::size_t>(sub.AscPointBegin / 30);
    EXPECT_EQ(sub.RasiLordNo, static_cast<int>(sign) + 1);
    EXPECT_EQ(sub.RashiLord, reference.Signs.at(sign).RulingPlanet);
    const auto star = static_cast<std::size_t>((sub.AscPointBegin + sub.AscPointEnd) / 2 / 40 * 3);
    EXPECT_EQ(sub.StarLord, reference.Stars.at(star).StarLord);
  }
  ASSERT_EQ(reference.Tithis.size(), 60U);
  for (std::size_t half = 0; half < 60; ++half) {
    const TithiRow& row = reference.Tithis[half];
    EXPECT_EQ(row.StartDegree, 6.0 * static_cast<double>(half));
    EXPECT_NEAR(row.EndDegree, 6.0 * static_cast<double>(half + 1), 0.001);
    EXPECT_EQ(row.Tithi, reference.Tithis[half / 2 * 2].Tithi);
    EXPECT_EQ(row.TithiType, half == 58 || half == 59   ? "A"
                             : half == 28 || half == 29 ? "P"
                             : half < 30                ? "S"
                                                        : "K");
  }
}

TEST(ReferenceRules, TheTithisOfBothHalvesAreCountedInTheSameWords) {
  const char* const names[] = {"Padyami", "Vidiya",  "Tadiya",   "Chavithi",  "Panchimi",
                               "Sashti",  "Saptami", "Ashtami",  "Navami",    "Dasimi",
                               "Ekadasi", "Dwadasi", "Triodasi", "Chaturdasi"};
  const char* const karans[] = {"Bava", "Balava", "Kaulava", "Taitila", "Gara", "Vanija", "Vishti"};
  const TsvTable tithis = DivideIntoHalfTithis();
  for (std::size_t half = 0; half < 60; ++half) {
    const std::size_t tithi = half / 2 % 15;
    if (tithi < 14) {
      EXPECT_EQ(tithis.Rows[half][0], names[tithi]) << half;
    }
    if (half >= 1 && half <= 56) {
      EXPECT_EQ(tithis.Rows[half][1], karans[(half - 1) % 7]) << half;
    }
  }
}

}  // namespace
}  // namespace orvex::core
