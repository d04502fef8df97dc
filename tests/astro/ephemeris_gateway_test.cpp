#include "astro/ephemeris_gateway.h"

#include <gtest/gtest.h>

#include "support/test_home.h"

namespace orvex::astro {
namespace {

TEST(EphemerisGateway, AMomentDropsItsSecondsAndHasBothDays) {
  EphemerisGateway gateway;
  const EphemerisMoment moment = gateway.PrepareMoment(test::Moment("2000-01-01 12:00:59"));
  EXPECT_EQ(moment.JulianDayUT.Days, 2451545.0);
  // Delta T of 2000 was 63.83 seconds.
  EXPECT_NEAR((moment.JulianDayET.Days - moment.JulianDayUT.Days) * 86400, 63.83, 0.05);
  gateway.Close();
}

TEST(EphemerisGateway, TheSkyOfTheYear2000IsSiderealAndCarriesItsSpeed) {
  EphemerisGateway gateway;
  const EphemerisMoment moment = gateway.PrepareMoment(test::Moment("2000-01-01 12:00"));
  // Tropical longitudes of the astronomical almanac less the Krishnamurti ayanamsa of 23.7602.
  const std::pair<int, double> tropical[] = {{0, 280.37}, {1, 223.32}, {2, 271.89}, {3, 241.57},
                                             {4, 327.96}, {5, 25.25},  {6, 40.40}};
  for (const auto& [planet, longitude] : tropical) {
    const double sidereal = longitude - 23.7602 + (longitude < 23.7602 ? 360 : 0);
    EXPECT_NEAR(gateway.CalcUt(moment.JulianDayUT, planet, kChartFlags).Longitude, sidereal, 0.02);
  }
  EXPECT_LT(gateway.CalcUt(moment.JulianDayUT, kSaturnNumber, kTransitFlags).Speed, 0);
  EXPECT_GT(gateway.CalcUt(moment.JulianDayUT, 0, kTransitFlags).Speed, 0.9);
  EXPECT_NEAR(gateway.Obliquity(moment.JulianDayUT), 23.4377, 0.001);
  EXPECT_FALSE(gateway.FellBack());
  EXPECT_FALSE(gateway.Failed());
  gateway.Close();
}

TEST(EphemerisGateway, AfterClosingTheNextComputationGivesTheSame) {
  EphemerisGateway gateway;
  const auto compute = [&gateway] {
    const EphemerisMoment moment = gateway.PrepareMoment(test::Moment("1990-07-05 09:00"));
    const double longitude = gateway.CalcUt(moment.JulianDayUT, 1, kChartFlags).Longitude;
    gateway.Close();
    return longitude;
  };
  EXPECT_EQ(compute(), compute());
}

TEST(EphemerisGateway, FlagsAndNamesAreThoseOfTheLibrary) {
  EphemerisGateway gateway;
  EXPECT_EQ(kChartFlags, 2 + 256 + 16 + 65536);
  EXPECT_EQ(kTransitFlags, 256 + 16 + 65536);
  const char* names[] = {"Sun", "Moon", "Mercury", "Venus", "Mars", "Jupiter", "Saturn"};
  for (int planet = 0; planet < 7; ++planet) {
    EXPECT_EQ(gateway.PlanetName(planet), names[planet]);
  }
}

TEST(EphemerisGateway, ADateBeyondTheEphemerisIsToldOf) {
  EphemerisGateway gateway;
  const EphemerisMoment moment = gateway.PrepareMoment(test::Moment("9999-01-01"));
  gateway.CalcUt(moment.JulianDayUT, 1, kChartFlags);
  EXPECT_TRUE(gateway.FellBack() || gateway.Failed());
  gateway.Close();
}

}  // namespace
}  // namespace orvex::astro
