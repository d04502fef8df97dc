#include "astro/sky_bodies.h"

#include <gtest/gtest.h>

#include "support/test_home.h"

namespace orvex::astro {
namespace {

TEST(SkyBodies, KetuStandsOppositeRahuAndOnTheLastDegreeWhereRahuStandsAt180) {
  const std::pair<float, float> cases[] = {
      {0.0F, 180.0F}, {179.99F, 359.99F}, {180.0F, 360.0F}, {180.01F, 0.01F}, {360.0F, 180.0F}};
  for (const auto& [rahu, ketu] : cases) {
    EXPECT_NEAR(KetuOfSky(rahu), ketu, 1e-4) << rahu;
  }
}

TEST(SkyBodies, BothNodesAreRetrogradeAlsoWhileTheTrueOneGoesForward) {
  EphemerisGateway ephemeris;
  bool forward = false;
  for (int day = 0; day < 60; ++day) {
    const EphemerisMoment moment =
        ephemeris.PrepareMoment(test::Moment("2026-01-01") + std::chrono::days(day));
    forward = forward || ephemeris.CalcUt(moment.JulianDayUT, kTrueNode, kTransitFlags).Speed > 0;
    for (const char* mode : {"M", "T"}) {
      const std::vector<SkyBody> bodies = SkyBodiesAt(ephemeris, moment.JulianDayUT, mode);
      ASSERT_EQ(bodies.size(), 12U);
      for (const SkyBody& body : {bodies[10], bodies[11]}) {
        EXPECT_TRUE(body.Retrograde) << body.Name << day;
      }
      EXPECT_EQ(bodies[10].Name + bodies[11].Name, "RahuKetu");
      EXPECT_FALSE(bodies[0].Retrograde || bodies[1].Retrograde);
    }
    ephemeris.Close();
  }
  EXPECT_TRUE(forward) << "the true node never went forward";
}

TEST(SkyBodies, WithoutANodeInUseKetuStandsAt180) {
  EphemerisGateway ephemeris;
  const EphemerisMoment moment = ephemeris.PrepareMoment(test::Moment("2026-01-01"));
  const std::vector<SkyBody> bodies = SkyBodiesAt(ephemeris, moment.JulianDayET, "X");
  ASSERT_EQ(bodies.size(), 11U);
  EXPECT_EQ(bodies.back().Name, "Ketu");
  EXPECT_EQ(bodies.back().Degree, 180.0F);
  EXPECT_EQ(NodeNumber("M"), kMeanNode);
  EXPECT_EQ(NodeNumber("T"), kTrueNode);
  ephemeris.Close();
}

}  // namespace
}  // namespace orvex::astro
