#include "chart/chart_moment.h"

#include <gtest/gtest.h>

#include "chart/cusps_from_ascendant.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

std::int64_t MinutesTo(core::DateTime from, core::DateTime to) {
  return std::chrono::duration_cast<std::chrono::minutes>(to - from).count();
}

TEST(ChartMoment, EastRunsOnTheClockAndWestOnTheLongitude) {
  struct {
    const char* offset;
    const char* longitude;
    double cityOffset;
    int minutes;  // from local to UT
  } const cases[] = {
      {"0", "77.2", 5.5, 0},        {"-0", "-74", -5, 0},
      {"5.5", "77.2", 5.5, -330},   {"5.5", "10", 9, -330},
      {"5.75", "85.3", 5.75, -345}, {"-5", "-74", -5, 296},
      {"-5", "-74.00597", -5, 296}, {"-3.5", "-52.70931", -3.5, 211},
      {"-6", "-74", -5, 236},        // an hour that the city's row does not have goes in as it is
      {"-5", "10", -5, -560},        // east longitude with a western offset
      {"4.01", "55", 4, -241},       // 240.6
      {"4.0083333", "55", 4, -240},  // 240.5, to the even minute
      {"4.025", "55", 4, -242},      // 241.5, to the even minute
      {"-5", "-74.125", -5, 296},    // 296.5
      {"-5", "-74.375", -5, 298},    // 297.5
  };
  const core::DateTime local = test::Moment("1990-07-05 14:30");
  for (const auto& c : cases) {
    const core::DateTime ut = ChartMomentUt(local, c.offset, c.longitude, c.cityOffset);
    EXPECT_EQ(MinutesTo(local, ut), c.minutes) << c.offset << " " << c.longitude;
  }
  EXPECT_THROW(ChartMomentUt(local, "x", "0", 0), std::invalid_argument);
  EXPECT_THROW(ChartMomentUt(test::Moment("0100-01-01"), "5", "0", 5), core::DateRangeError);
}

TEST(ChartMoment, AnInstantChartAddsItsMinutesWithoutTheirSign) {
  struct {
    float offset;
    float longitude;
    int minutes;
  } const cases[] = {{0, 77, 0}, {5.5F, 77, -330}, {-5, -74, 296}, {-5, 10, 560}};
  const core::DateTime local = test::Moment("1990-07-05 14:30");
  for (const auto& c : cases) {
    EXPECT_EQ(MinutesTo(local, InstantMomentUt(local, c.offset, c.longitude)), c.minutes);
  }
  EXPECT_EQ(MinutesTo(local, PlainMomentUt(local, -3.5F)), 210);
}

TEST(ChartMoment, AFullTurnIsTakenOffOnceOnly) {
  const std::pair<double, double> cases[] = {{-1, 359},      {-361, -1}, {0, 0},
                                             {359.5, 359.5}, {360, 0},   {725, 365}};
  for (const auto& [degrees, corrected] : cases) {
    EXPECT_EQ(hp_Rnd0To360v(degrees), corrected);
  }
}

}  // namespace
}  // namespace orvex::chart
