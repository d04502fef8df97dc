#include "astro/sun_events.h"

#include <gtest/gtest.h>

#include "support/test_home.h"

namespace orvex::astro {
namespace {

TEST(SunEvents, JulianDaysOfKnownDates) {
  struct {
    int year, month, day;
    double julianDay;
  } const cases[] = {{2000, 1, 1, 2451544.5},  {1957, 10, 4, 2436115.5}, {1987, 1, 27, 2446822.5},
                     {1900, 2, 28, 2415078.5}, {1900, 3, 1, 2415079.5},  {1582, 10, 15, 2299160.5},
                     {1582, 10, 14, 2299159.5}};
  for (const auto& c : cases) {
    EXPECT_EQ(CalcJulianDay(c.year, c.month, c.day), c.julianDay) << c.year;
  }
}

TEST(SunEvents, ConversionsUseTheirOwnHalfTurnAndInversesATruePi) {
  EXPECT_EQ(DegToRad(180), 3.14);
  EXPECT_EQ(RadToDeg(3.14), 180);
  EXPECT_DOUBLE_EQ(ArcCos(-1), 3.14159265358979324);
  EXPECT_DOUBLE_EQ(ArcSin(1), 1.57079632679489662);
  EXPECT_NEAR(ArcCos(0.5), 1.04719755119659774, 1e-14);
  EXPECT_THROW(ArcCos(1.0001), std::domain_error);
}

TEST(SunEvents, SunriseAndSunsetAreWithinMinutesOfTheAlmanac) {
  // Published times; the conversions of this series shift them by a few minutes.
  struct {
    const char* date;
    float zone, latitude, longitude;
    double sunrise, sunset;  // minutes after midnight
  } const cases[] = {{"2000-03-20", 0, 51.4779F, 0, 365, 1094},
                     {"2000-06-21", 5.5F, 19.07F, 72.88F, 361, 1159},
                     {"2000-12-21", -5, 40.71F, -74.01F, 437, 991}};
  for (const auto& c : cases) {
    const core::DateParts day = core::PartsOf(test::Moment(c.date));
    EXPECT_NEAR(CalcSunriseLocal(c.latitude, c.longitude, day.Year, day.Month, day.Day, c.zone, 0),
                c.sunrise, 6);
    EXPECT_NEAR(CalcSunsetLocal(c.latitude, c.longitude, day.Year, day.Month, day.Day, c.zone, 0),
                c.sunset, 6);
  }
}

TEST(SunEvents, TextsKeepTheirFixedSuffixesAndThePolarForm) {
  struct {
    const char* date;
    float zone, latitude, longitude;
    const char* sunrise;
    const char* sunset;
  } const cases[] = {
      {"1965-12-12", 1, 80, 15, "0:00 AM", "-12:00 PM"},
      {"2035-06-27", 0, 90, 0, "0:00 AM", "-12:00 PM"},
      {"1963-11-02", 5.75F, 27.70169F, 85.3206F, "6:13 AM", "5:19 PM"},
      {"1997-09-04", 0, 51.50853F, -0.12574F, "5:16 AM", "6:40 PM"},
  };
  for (const auto& c : cases) {
    core::ApplicationState state;
    ComputeSunTimes(state, test::Moment(c.date), c.zone, c.latitude, c.longitude);
    EXPECT_EQ(state.SunriseText, c.sunrise) << c.date;
    EXPECT_EQ(state.SunsetText, c.sunset) << c.date;
  }
}

TEST(SunEvents, ThePoleIsTakenAsItsNearestLatitude) {
  const auto minutes = [](double latitude, int day) -> std::optional<double> {
    try {
      return CalcSunriseLocal(latitude, 0, 2000, 3, day, 0, 0);
    } catch (const std::domain_error&) {
      return std::nullopt;
    }
  };
  int rising = 0;
  for (int day = 10; day <= 25; ++day) {
    EXPECT_EQ(minutes(90, day), minutes(89.8, day)) << day;
    EXPECT_EQ(minutes(-90, day), minutes(-89.8, day)) << day;
    rising += minutes(90, day) || minutes(-90, day) ? 1 : 0;
  }
  EXPECT_GT(rising, 0);
}

}  // namespace
}  // namespace orvex::astro
