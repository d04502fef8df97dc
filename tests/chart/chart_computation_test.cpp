#include "chart/chart_computation.h"

#include <gtest/gtest.h>

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
      // The target of the last subs before the wrap of the tropical circle has no bracket: the
      // search then stays at its starting value.
      const core::SubRow& sub = SubOfDegree(session_->Reference, ascendant);
      EXPECT_EQ(sub.AscNo, number) << latitude << ": " << ascendant;
    }
  }
}

TEST_F(ChartComputation, ATargetInsideTheJumpOfTheAscendantFallsBackToTheStart) {
  // No ARMC gives an Ascendant between the last one before 360 and 360 itself.
  astro::EphemerisGateway& gateway = session_->Ephemeris;
  const auto moment = gateway.PrepareMoment(test::Moment("2026-11-24 10:00"));
  const double obliquity = gateway.Obliquity(moment.JulianDayUT);
  const astro::Cusps found =
      CuspsFromAscendant(gateway, moment.JulianDayUT, 335.9299999, 28.6, kFixedAyanamsa);
  const astro::Cusps start = gateway.TropicalHouses(0, 28.6, obliquity);
  const bool bracketed = std::abs(found[1] - 359.9999999) < 0.001 || found[1] < 0.001;
  EXPECT_TRUE(bracketed || found[10] == start[10]);
  gateway.Close();
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
