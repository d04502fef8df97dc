// Rules of the chart's tables that a worked chart need not show.
#include <gtest/gtest.h>

#include <set>

#include "chart/client_checks.h"
#include "chart/client_saving.h"
#include "chart/combustion.h"
#include "chart/dasha_periods.h"
#include "chart/house_table.h"
#include "chart/instant_chart.h"
#include "chart/planet_table.h"
#include "chart/south_grid.h"
#include "chart/vastu_direction.h"
#include "core/text.h"
#include "support/model_builder.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

class ChartRules : public testing::Test {
 protected:
  ClientForm Form() const {
    ClientForm form = OpenAddClient(*session_);
    form.FullName = "Client";
    return form;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(ChartRules, TheBordersOfNumbersAreTakenAndNothingBeyondThem) {
  const std::pair<const char*, bool> degrees[] = {{"0", true},      {"360", true},
                                                  {"360.00", true}, {"360.01", false},
                                                  {"-0.01", false}, {"", false}};
  for (const auto& [degree, taken] : degrees) {
    ClientForm form = Form();
    form.AscendantByHand = true;
    form.AscendantDegree = degree;
    EXPECT_EQ(!CheckClient(*session_, form), taken) << degree;
  }
  const std::pair<const char*, bool> numbers[] = {{"1", true},    {"249", true},  {"0", false},
                                                  {"250", false}, {"1.5", false}, {"", false}};
  for (const auto& [number, taken] : numbers) {
    ClientForm form = Form();
    form.Horary = true;
    form.HoraryQuestion = "?";
    form.HoraryNumber = number;
    EXPECT_EQ(!CheckClient(*session_, form), taken) << number;
  }
}

// Worked by hand: Moon and begin of the quarter, the minutes left of 800, months of the lord's
// years, days of 30.4375 to a month.
TEST(DashaBalanceRules, TheRestOfAStarIsYearsMonthsOfThirtyDaysAndDays) {
  struct {
    double moon;
    double begin;
    int quarter;
    int years;
    int balance[3];
  } const cases[] = {
      {13.30, 10.00, 4, 7, {0, 0, 6}},   // 2 minutes: 0.21 months, 6.4 days
      {13.00, 10.00, 4, 7, {0, 2, 4}},   // 20 minutes: 2.1 months, 64 days
      {12.00, 10.00, 4, 7, {0, 8, 16}},  // 80 minutes: 8.4 months, 256 days
      {13.33, 10.00, 4, 20, {0, 0, 2}},  // 0.2 minutes of Venus: 0.06 months, 1.8 days
      {0.00, 0.00, 1, 7, {7, 0, 0}},     // the whole star
      {6.67, 6.67, 3, 7, {3, 5, 29}},    // half of it: 1278 days, 3.49 years cut to two digits
  };
  for (const auto& c : cases) {
    const DashaBalance balance = BalanceAtBirth(c.moon, c.begin, c.quarter, c.years);
    EXPECT_EQ(balance.Years, c.balance[0]) << c.moon;
    EXPECT_EQ(balance.Months, c.balance[1]) << c.moon;
    EXPECT_EQ(balance.Days, c.balance[2]) << c.moon;
  }
}

TEST_F(ChartRules, TheTooltipOfASignTellsWhatTheSignIs) {
  HoroscopeModel model;
  model.FirstRashiHouse = 1;
  AddHouseRows(model);
  FillRashis(session_->Reference, model);
  const char* const kinds[] = {"Movable", "Fixed", "Dual"};
  const char* const elements[] = {"Fire", "Earth", "Air", "Water"};
  for (std::size_t row = 0; row < 12; ++row) {
    const std::string& facts = model.HouseTable.At(row, HouseColumn::Rashi).Tag;
    EXPECT_TRUE(core::Contains(facts, row % 2 == 0 ? " | Male | " : " | Female | ")) << facts;
    EXPECT_TRUE(core::Contains(facts, std::string(" | ") + kinds[row % 3])) << facts;
    EXPECT_TRUE(core::Contains(facts, std::string(" | ") + elements[row % 4] + " | ")) << facts;
    EXPECT_EQ(core::Contains(facts, "Fruitful"), row % 4 == 3) << facts;
    EXPECT_EQ(core::Contains(facts, "Mute"), row % 4 == 3) << facts;
    EXPECT_EQ(core::Contains(facts, "Barren"), row == 2 || row == 4 || row == 5) << facts;
  }
}

// The house so many places on counts itself as the first.
TEST_F(ChartRules, AspectHousesCountFromTheHouseItself) {
  HoroscopeModel model;
  AddHouseRows(model);
  const std::pair<HouseColumn, int> columns[] = {{HouseColumn::Asp3, 3},  {HouseColumn::Asp4, 4},
                                                 {HouseColumn::Asp5, 5},  {HouseColumn::Asp7, 7},
                                                 {HouseColumn::Asp8, 8},  {HouseColumn::Asp9, 9},
                                                 {HouseColumn::Asp10, 10}};
  for (int house = 1; house <= 12; ++house) {
    for (const auto& [column, places] : columns) {
      int counted = house;
      for (int step = 1; step < places; ++step) {
        counted = counted == 12 ? 1 : counted + 1;
      }
      EXPECT_EQ(model.HouseTable.At(static_cast<std::size_t>(house) - 1, column).Text,
                std::to_string(counted));
    }
  }
}

TEST_F(ChartRules, ThreeStarsAreNeuterAndTheOthersMaleOrFemale) {
  HoroscopeModel model;
  FillStarTable(session_->Reference, model);
  ASSERT_EQ(model.StarTable.Rows.size(), 108U);
  for (std::size_t row = 0; row < 108; ++row) {
    const std::string& star = model.StarTable.At(row, StarColumn::StarName).Text;
    const std::string& gender = model.StarTable.At(row, StarColumn::Gender).Text;
    const bool neuter = star == "Mrigshirsha" || star == "Mula" || star == "Shatbhisha";
    EXPECT_EQ(gender == "Neutral", neuter) << star;
    EXPECT_TRUE(neuter || gender == "Male" || gender == "Female") << star << gender;
    EXPECT_EQ(model.StarTable.At(row, StarColumn::Pada).Text, std::to_string(row % 4 + 1));
    EXPECT_EQ(model.StarTable.At(row, StarColumn::Rashi).Text, std::to_string(row / 9 + 1));
  }
  EXPECT_EQ(model.StarTable.At(0, StarColumn::Gender).Text, "Male");    // Ashwini
  EXPECT_EQ(model.StarTable.At(4, StarColumn::Gender).Text, "Female");  // Bharani
}

TEST(SouthGridRules, SignsRunClockwiseRoundTheRimFromPiscesInTheCorner) {
  std::size_t row = 0;
  std::size_t column = 0;
  for (int step = 0; step < 12; ++step) {
    EXPECT_EQ(kSouthSigns.at(row).at(column), (step + 11) % 12 + 1);
    if (row == 0 && column < 3) {
      ++column;
    } else if (column == 3 && row < 3) {
      ++row;
    } else if (row == 3 && column > 0) {
      --column;
    } else {
      --row;
    }
  }
  EXPECT_EQ(kSouthSigns[1][1] + kSouthSigns[1][2] + kSouthSigns[2][1] + kSouthSigns[2][2], 0);
}

// West of Greenwich as east of it the instant is that of a birth with the city's own offset.
TEST_F(ChartRules, AnInstantChartIsTheChartOfOneBornNow) {
  const std::tuple<const char*, float, float, float> cities[] = {
      {"New York", 40.71427F, -74.00597F, -5.0F}, {"Dubai", 25.07725F, 55.30927F, 4.0F}};
  for (const auto& [name, latitude, longitude, offset] : cities) {
    core::ApplicationState& state = session_->State;
    state.UserCityLatitude = latitude;
    state.UserCityLongitude = longitude;
    state.UserCityOffset = offset;
    const core::SaveResult instant = CreateInstantChart(*session_);
    ASSERT_FALSE(instant.Refused) << name;
    const ChartInput input{session_->Time.Now(), core::SingleText(offset),
                           core::SingleText(latitude), core::SingleText(longitude),
                           static_cast<double>(offset)};
    const ChartResult birth = ComputeChart(*session_, input);
    const core::Result row = session_->StoreConnection.Query(
        "Select * from client_master where id = " + std::to_string(instant.Id));
    for (std::size_t cusp = 0; cusp < 12; ++cusp) {
      EXPECT_NEAR(row.Number("CuspDegree" + std::to_string(cusp + 1)),
                  core::ToDouble(birth.Cusps.at(cusp).DegStart), 0.3)
          << name << cusp + 1;
    }
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
  }
}

TEST(CombustionRules, EachOrbHoldsAtItsBorderAndNotBeyond) {
  struct {
    const char* planet;
    bool retrograde;
    double orb;
  } const cases[] = {{"Moon", false, 12},   {"Mercury", false, 14}, {"Mercury", true, 12},
                     {"Venus", false, 10},  {"Venus", true, 8},     {"Mars", false, 17},
                     {"Mars", true, 17},    {"Jupiter", false, 11}, {"Jupiter", true, 11},
                     {"Saturn", false, 15}, {"Saturn", true, 15}};
  for (const auto& c : cases) {
    for (const double side : {-1.0, 1.0}) {
      const auto at = [&](double distance) {
        return IsCombust(c.planet, c.retrograde, "100.00",
                         static_cast<float>(100 + side * distance));
      };
      EXPECT_TRUE(at(c.orb)) << c.planet;
      EXPECT_FALSE(at(c.orb + 0.01)) << c.planet;
    }
  }
}

// Every pad of the plan belongs to one sign, but for the two beside the south-west corner.
TEST(VastuRules, TheSignsShareThePadsOfTheFourSides) {
  std::multiset<std::string> pads;
  for (int sign = 1; sign <= 12; ++sign) {
    for (const std::string& pad : core::Split(VastuPadsOfSign(sign), ',')) {
      pads.insert(core::Trim(pad));
    }
    EXPECT_FALSE(VastuDirection(sign).empty());
  }
  EXPECT_EQ(pads.size(), 30U);
  for (const char side : {'N', 'E', 'S', 'W'}) {
    for (int pad = 1; pad <= 8; ++pad) {
      const std::string name = side + std::to_string(pad);
      EXPECT_EQ(pads.count(name), name == "S8" || name == "W1" ? 0U : 1U) << name;
    }
  }
  EXPECT_EQ(VastuDirection(0) + VastuDirection(13), "");
}

}  // namespace
}  // namespace orvex::chart
