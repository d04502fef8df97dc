#include <gtest/gtest.h>

#include <set>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "panchang/tithi.h"
#include "support/test_home.h"
#include "vedic/ashtakavarga.h"
#include "vedic/ashtakavarga_bits.h"
#include "vedic/birth_star.h"
#include "vedic/karakas.h"
#include "vedic/lal_kitab.h"
#include "vedic/lal_kitab_years.h"
#include "vedic/lo_shu.h"
#include "vedic/numerology.h"

namespace orvex::vedic {
namespace {

using chart::HouseColumn;
using chart::PlanetColumn;

// Twelve houses from a sign, planets in them by number of house; degrees within the sign.
chart::HoroscopeModel ModelWith(int firstSign, const std::vector<const char*>& rcPlanets) {
  chart::HoroscopeModel model;
  model.HouseTable.Columns.resize(16);
  for (int house = 0; house < 12; ++house) {
    core::Row& row = model.HouseTable.AddRow();
    row.Cells[0].Text = std::to_string(house + 1);
    row.Cells[core::Table::Index(HouseColumn::Rashi)].Text =
        std::to_string((firstSign + house - 1) % 12 + 1);
    row.Cells[core::Table::Index(HouseColumn::RcPlanets)].Text =
        rcPlanets.at(static_cast<std::size_t>(house));
  }
  model.AspectGrid.Columns.resize(13);
  for (int row = 0; row < 6; ++row) {
    model.AspectGrid.AddRow();
  }
  return model;
}

void AddPlanet(chart::HoroscopeModel& model, const char* name, const char* degreeInSign) {
  model.PlanetTable.Columns.resize(17);
  model.PlanetTable.AddRow();
  const std::size_t row = model.PlanetTable.Rows.size() - 1;
  model.PlanetTable.At(row, PlanetColumn::Planet).Text = name;
  model.PlanetTable.At(row, PlanetColumn::R).Tag = degreeInSign;
}

std::string Bindus(const SourceBindus& bindus) {
  std::string text;
  for (std::size_t sign = 1; sign <= 12; ++sign) {
    text += std::to_string(bindus.at(sign));
  }
  return text;
}

TEST(Ashtakavarga, SourcesTurnWithTheirSignButForTheTwelfth) {
  const std::string sun = "SU*1*1*0*1*0*0*1*1*1*1*1*0";
  const std::pair<int, const char*> cases[] = {
      {1, "110100111110"}, {3, "101101001111"}, {11, "010011111011"}, {12, "110100111110"}};
  for (const auto& [sign, wanted] : cases) {
    std::vector<const char*> planets(12, "");
    planets[0] = "MO SU";
    EXPECT_EQ(Bindus(AddSourceBindus(ModelWith(sign, planets), sun, "SU")), wanted) << sign;
    const std::string ascendant = "LA" + sun.substr(2);
    EXPECT_EQ(Bindus(AddSourceBindus(ModelWith(sign, planets), ascendant, "LA")), wanted);
  }
  EXPECT_EQ(Bindus(AddSourceBindus(ModelWith(1, std::vector<const char*>(12, "")), sun, "SU")),
            "000000000000");
}

TEST(Ashtakavarga, TheConstantsOfTheSchemeAre337AndASecondRunDoesNotAddUp) {
  chart::HoroscopeModel model =
      ModelWith(5, {"SU", "MO", "MA", "ME", "JU", "VE", "SA", "RA", "KE", "", "", ""});
  const int totals[] = {48, 49, 39, 54, 56, 52, 39};
  for (int run = 0; run < 2; ++run) {
    ComputeAshtakavarga(model);
    for (std::size_t row = 1; row <= 7; ++row) {
      EXPECT_EQ(model.AshtakavargaTable.Rows[row].Cells[13].Text, std::to_string(totals[row - 1]));
    }
    EXPECT_EQ(model.AshtakavargaTable.Rows[8].Cells[13].Text, "337");
    EXPECT_EQ(model.AshtakavargaTable.Rows[0].Cells[13].Text, "N/A");
  }
}

TEST(BirthStar, EveryStarHasEachAttributeOnceAndHalvesOfTwoSignsDiffer) {
  test::TestHome home;
  const auto session = home.Start();
  std::multiset<std::string> nadis;
  for (const core::StarRow& star : session->Reference.Stars) {
    const std::vector<std::string> pieces = core::Split(NadiYoniText(star.StarName), '-');
    ASSERT_EQ(pieces.size(), 2U) << star.StarName;
    nadis.insert(pieces[0]);
    EXPECT_TRUE(core::Contains(VasyaRajjuText("Leo", 5, 130, star.StarName), "Vanchar - "));
    EXPECT_TRUE(
        core::Contains(VarnaGanaText(session->Reference, "Leo", star.StarName), "Kshatriya - "));
  }
  EXPECT_EQ(nadis.count("Adi ") + nadis.count("Madhya ") + nadis.count("Antya "), 27U);
  EXPECT_EQ(nadis.count("Adi "), 9U);
  EXPECT_EQ(nadis.count("Madhya "), 9U);
  struct {
    int sign;
    double degree;
    const char* vasya;
  } const halves[] = {{9, 254.99, "Dwipad"},
                      {9, 255.0, "Chatushpad"},
                      {10, 284.99, "Chatushpad"},
                      {10, 285.0, "Jalachar"}};
  for (const auto& half : halves) {
    EXPECT_EQ(VasyaRajjuText("", half.sign, half.degree, ""), half.vasya) << half.degree;
  }
  EXPECT_EQ(NadiYoniText("Nowhere"), "");
}

TEST(BirthStar, TheBhriguBinduLiesBetweenMoonAndRahu) {
  struct {
    float moon, rahu, point;
  } const cases[] = {{100, 100, 280},
                     {10, 350, 360},
                     {350, 340, 345},
                     {24.62F, 18.48F, 21.55F},
                     {179.9F, 231.23F, 25.56F},
                     {92.45F, 308.8F, 20.62F},
                     {252.73F, 351.52F, 122.13F}};
  for (const auto& c : cases) {
    EXPECT_FLOAT_EQ(BhriguBinduDegree(c.moon, c.rahu), c.point) << c.moon << " " << c.rahu;
  }
}

TEST(Karakas, TheHighestDegreeLeadsAndTiesRepeatTheFirstPlanet) {
  chart::HoroscopeModel model;
  for (const auto& [name, degree] :
       std::vector<std::pair<const char*, const char*>>{{"Ketu", "29.99"},
                                                        {"Venus", "12.34"},
                                                        {"Sun", "29.98"},
                                                        {"Moon", "0.01"},
                                                        {"Mars", "12.34"},
                                                        {"Rahu", "29.99"},
                                                        {"Jupiter", "5.00"},
                                                        {"Saturn", "20.00"},
                                                        {"Mercury", "15.00"}}) {
    AddPlanet(model, name, degree);
  }
  BuildKarakaTable(model);
  const char* wanted[] = {"Sun", "Saturn", "Mercury", "Venus", "Venus", "Jupiter", "Moon"};
  for (std::size_t row = 0; row < 7; ++row) {
    EXPECT_EQ(model.KarakaTable.At(row, KarakaColumn::Planet).Text, wanted[row]) << row;
  }
  EXPECT_EQ(model.KarakaTable.At(0, KarakaColumn::Karaka).Text, "Atma Karaka (AK)");
}

TEST(LalKitab, EveryYearIsAPermutationButTheTwoThatAreKnown) {
  for (int year = 1; year <= 120; ++year) {
    chart::HoroscopeModel model =
        ModelWith(1, {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L"});
    ShowLalKitabYear(model.HouseTable, year, model.LalKitabYear);
    std::set<std::string> shown;
    for (const core::Row& row : model.LalKitabYear.Rows) {
      shown.insert(row.Cells[1].Text);
    }
    EXPECT_EQ(shown.size(), 12U) << year;  // in those two the empty house counts as one
    EXPECT_EQ(shown.contains(""), year == 76 || year == 96) << year;
  }
}

TEST(LalKitab, AHouseThatNoHouseMovesToKeepsWhatItShowed) {
  chart::HoroscopeModel model =
      ModelWith(1, {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L"});
  ShowLalKitabYear(model.HouseTable, 75, model.LalKitabYear);
  const std::string before = model.LalKitabYear.Rows[11].Cells[1].Text;
  ShowLalKitabYear(model.HouseTable, 76, model.LalKitabYear);
  EXPECT_EQ(model.LalKitabYear.Rows[11].Cells[1].Text, before);
  EXPECT_EQ(model.LalKitabYear.Rows[10].Cells[1].Text, "I");  // the later of two houses
  EXPECT_THROW(ShowLalKitabYear(model.HouseTable, 121, model.LalKitabYear), std::out_of_range);
}

TEST(LoShu, DigitsOfTheDateFillTheGridAndItsPlanes) {
  test::TestHome home;
  const auto session = home.Start();
  struct {
    const char* birth;
    const char* tag;
    const char* counts;  // of 1 to 9
  } const cases[] = {{"1990-07-05", "7/5/1990*5*4", "100120102"},
                     {"1946-05-28", "5/28/1946*1*8", "210111021"}};
  for (const auto& c : cases) {
    chart::HoroscopeModel model;
    model.Birth = test::Moment(c.birth);
    FillNumerology(session->Reference, model);
    EXPECT_EQ(model.Captions.NumerologyTag, c.tag);
    BuildLoShu(session->Reference, model);
    std::string counts;
    for (std::size_t number = 1; number <= 9; ++number) {
      counts += std::to_string(model.LoShuCount.at(number));
    }
    EXPECT_EQ(counts, c.counts) << c.birth;
    for (const core::Row& row : model.LoShuPlanes.Rows) {
      const std::string& digits = row.Cells[0].Text;
      bool whole = true;
      for (const char digit : digits) {
        whole = whole && model.LoShuCount.at(static_cast<std::size_t>(digit - '0')) > 0;
      }
      EXPECT_EQ(row.Cells[0].Foreground.empty(), whole) << digits;
    }
  }
}

TEST(Numerology, SumsGoDownToOneDigit) {
  const std::pair<const char*, int> cases[] = {{"5", 5}, {"29", 2}, {"751990", 4}, {"11291999", 5}};
  for (const auto& [digits, number] : cases) {
    EXPECT_EQ(ReducedDigitSum(digits), number) << digits;
  }
}

TEST(Tithi, TheAngleFromSunToMoonNamesTithiKaranAndHalf) {
  test::TestHome home;
  const auto session = home.Start();
  struct {
    float moon, sun;
    const char* text;
  } const cases[] = {
      {10, 10, "Sukla - Padyami*Kimstughna"},   {10, 350, "Sukla - Vidiya*Kaulava"},
      {180, 0, "Krishna - Padyami*Balava"},     {179.99F, 0, "Purnima - Purnima*Bava"},
      {359.99F, 0, "Amavasya - Amavasya*Naga"}, {229.48F, 79.47F, "Sukla - Triodasi*Taitila"}};
  for (const auto& c : cases) {
    EXPECT_EQ(panchang::TithiKaranOf(session->Reference, c.moon, c.sun), c.text) << c.moon;
  }
  EXPECT_EQ(panchang::TithiKaranOf({}, 10, 10), "N/A*N/A");
}

TEST(Yoga, TheSumIsCutBy13Point33) {
  const std::tuple<float, float, const char*> cases[] = {{0.0F, 0.0F, ""},
                                                         {5.0F, 5.0F, "Vishakumbha"},
                                                         {13.33F, 0.0F, "Vishakumbha"},
                                                         {13.34F, 0.0F, "Priti"},
                                                         {359.9F, 0.0F, "Vaidhriti"},
                                                         {359.9F, 359.9F, "Vaidhriti"},
                                                         {360.0F, 0.5F, "Vishakumbha"}};
  for (const auto& [sun, moon, yoga] : cases) {
    EXPECT_EQ(panchang::YogaOf(sun, moon), yoga) << sun << "+" << moon;
  }
}

}  // namespace
}  // namespace orvex::vedic
