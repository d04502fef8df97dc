#include "chart/chart_computation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "chart/cusps_from_ascendant.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

class ChartComputation : public testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

const std::vector<std::string> kOrder = {"Sun",     "Moon",   "Mercury", "Venus", "Mars",
                                         "Jupiter", "Saturn", "Rahu",    "Ketu"};

void ExpectWhole(const ChartResult& chart) {
  ASSERT_EQ(chart.Cusps.size(), 12U);
  ASSERT_EQ(chart.Planets.size(), 9U);
  for (std::size_t i = 0; i < 12; ++i) {
    EXPECT_EQ(chart.Cusps[i].Cusp, static_cast<int>(i) + 1);
    EXPECT_EQ(chart.Cusps[i].DegEnd, chart.Cusps[(i + 1) % 12].DegStart);
  }
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(chart.Planets[i].Planet, kOrder[i]);
    EXPECT_TRUE(chart.Planets[i].ChalitHouse);
    EXPECT_FALSE(chart.Planets[i].SubLord.empty());
  }
  const double apart =
      core::ToDouble(chart.Planets[8].Degree) - core::ToDouble(chart.Planets[7].Degree);
  EXPECT_NEAR(std::abs(apart), 180, 1e-9);
  EXPECT_EQ(chart.Planets[7].InRetro + chart.Planets[8].InRetro, "00");
  EXPECT_EQ(chart.Planets[0].InRetro + chart.Planets[1].InRetro, "00");
}

TEST_F(ChartComputation, RandomBirthsAreWholeInBothNodeModes) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> day(0, 150 * 365);
  std::uniform_int_distribution<int> minute(0, 1439);
  std::uniform_real_distribution<double> latitude(-60, 60);
  std::uniform_real_distribution<double> longitude(-180, 180);
  for (int i = 0; i < 300; ++i) {
    session_->State.RahuKetuCalculation = i % 2 == 0 ? 'M' : 'T';
    ChartInput input;
    input.Birth = test::Moment("1880-01-01") + std::chrono::days(day(random)) +
                  std::chrono::minutes(minute(random));
    input.Longitude = core::TwoDecimals(longitude(random));
    input.Latitude = core::TwoDecimals(latitude(random));
    input.CityOffset = core::RoundHalfEven(core::ToDouble(input.Longitude) / 15);
    input.Offset = core::DoubleText(input.CityOffset);
    ExpectWhole(ComputeChart(*session_, input));
  }
}

TEST_F(ChartComputation, EveryHoraryNumberRisesInItsOwnSub) {
  for (const char* latitude : {"-60", "0", "28.6", "60"}) {
    for (int number = 1; number <= 249; ++number) {
      const ChartInput input{test::Moment("2026-11-24 10:00"), "5.5",  latitude, "77.2", 5.5,
                             AscendantChoice::Horary,          number, ""};
      const ChartResult chart = ComputeChart(*session_, input);
      ASSERT_EQ(chart.Cusps.size(), 12U);
      const double ascendant = core::ToDouble(chart.Cusps[0].DegStart);
      const core::SubRow& sub = SubOfDegree(session_->Reference, ascendant);
      EXPECT_EQ(sub.AscNo, number) << latitude << ": " << ascendant;
    }
  }
}

// At a meridian of 270 degrees 0 degrees Aries rises at every latitude. The last thousandth of a
// degree before it brackets nothing, as the next Ascendant of the table is near 0 and not above.
TEST_F(ChartComputation, ATargetInsideTheJumpOfTheAscendantGetsTheHousesOfMeridianZero) {
  astro::EphemerisGateway& gateway = session_->Ephemeris;
  const auto moment = gateway.PrepareMoment(test::Moment("2026-11-24 10:00"));
  const double obliquity = gateway.Obliquity(moment.JulianDayUT);
  for (const double latitude : {-60.0, 0.0, 28.6, 60.0}) {
    const double last = gateway.TropicalHouses(269.999, latitude, obliquity)[1];
    ASSERT_TRUE(last > 359.99 && last < 359.9999) << latitude;
    const astro::Cusps start = gateway.TropicalHouses(0, latitude, obliquity);
    const auto cuspsOf = [&](double target) {
      return CuspsFromAscendant(gateway, moment.JulianDayUT, target - kFixedAyanamsa, latitude,
                                kFixedAyanamsa);
    };
    EXPECT_EQ(cuspsOf((last + 360) / 2), start) << latitude;
    for (const double target : {1e-6, 90.0, 180.0, 359.5, last - 1e-4}) {
      const astro::Cusps found = cuspsOf(target);
      EXPECT_NEAR(found[1], target, 1e-5) << latitude;
      EXPECT_NEAR(std::abs(found[1] - found[7]), 180, 1e-9) << latitude;
    }
  }
  const ChartInput byHand{test::Moment("2026-11-24 10:00"), "0", "28.6",  "77.2", 0,
                          AscendantChoice::ByHand,          0,   "335.93"};
  const astro::Cusps start = gateway.TropicalHouses(0, 28.6, obliquity);
  EXPECT_EQ(ComputeChart(*session_, byHand).Cusps[0].DegStart,
            core::TwoDecimals(start[1] - kFixedAyanamsa));
}

TEST_F(ChartComputation, KetuIsOppositeAtTheEdgesOfTheHalfCircle) {
  const std::pair<const char*, std::pair<const char*, const char*>> cases[] = {
      {"1902-12-08 12:00", {"180.00", "0.00"}}, {"1912-03-27 06:00", {"0.00", "180.00"}}};
  for (const auto& [birth, nodes] : cases) {
    const ChartResult chart = ComputeChart(*session_, {test::Moment(birth), "0", "10", "20", 0});
    EXPECT_EQ(chart.Planets[7].Degree, nodes.first);
    EXPECT_EQ(chart.Planets[8].Degree, nodes.second);
  }
}

TEST_F(ChartComputation, TheNodeFollowsTheSetting) {
  ChartInput input{test::Moment("1990-07-05 14:30"), "5.5", "19.07283", "72.88261", 5.5};
  const std::string mean = ComputeChart(*session_, input).Planets[7].Degree;
  session_->State.RahuKetuCalculation = 'T';
  EXPECT_NE(ComputeChart(*session_, input).Planets[7].Degree, mean);
}

TEST_F(ChartComputation, PolarPlacesAndFarYearsDoNotBreakIt) {
  for (const char* birth : {"0100-01-02 00:00", "1582-10-10 12:00", "9999-12-30 23:59"}) {
    for (const char* latitude : {"-90", "-70", "66.6", "89.9", "90"}) {
      const ChartInput input{test::Moment(birth), "2", latitude, "20", 2};
      const ChartResult chart = ComputeChart(*session_, input);
      EXPECT_EQ(chart.Cusps.size() + chart.Planets.size(), 21U) << birth << " " << latitude;
    }
  }
}

TEST_F(ChartComputation, AHandSetAscendantIsRoundedAndKeptAtAllDates) {
  for (const char* birth : {"1850-01-01 05:00", "2026-11-24 10:00"}) {
    ChartInput input{test::Moment(birth),     "0", "28.6",   "77.2", 0,
                     AscendantChoice::ByHand, 0,   "212.704"};
    EXPECT_EQ(ComputeChart(*session_, input).Cusps[0].DegStart, "212.70") << birth;
  }
}

}  // namespace
}  // namespace orvex::chart
