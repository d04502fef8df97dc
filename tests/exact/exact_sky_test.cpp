#include "exact/exact_sky.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/settings.h"
#include "exact/exact_tables.h"
#include "support/test_home.h"

namespace orvex::exact {
namespace {

class ExactSkyTest : public ::testing::Test {
 protected:
  ExactSky Sky(Reading reading = Reading::Kp, char nodeMode = 'M') {
    return ExactSky(session_->Ephemeris, reading, nodeMode);
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  ExactZodiac zodiac_{session_->Reference};
};

TEST_F(ExactSkyTest, NamesAreTakenInAnyCase) {
  EXPECT_EQ(PointOfName("mERCURY"), Point::Mercury);
  EXPECT_EQ(PointOfName("ascendant"), Point::Ascendant);
  EXPECT_FALSE(PointOfName("Uranus"));
  EXPECT_EQ(PointName(Point::Ketu), "Ketu");
  EXPECT_EQ(ReadingOfCode("KP-New"), Reading::KpNew);
  EXPECT_FALSE(ReadingOfCode(""));
  EXPECT_EQ(ReadingName(Reading::KpNew), "KP new");
  EXPECT_EQ(ReadingOf(*session_), Reading::Kp);
  EXPECT_FALSE(core::SaveExactAyanamsa(*session_, "kp-new").Refused);
  EXPECT_EQ(ReadingOf(*session_), Reading::KpNew);
}

// The Moon runs half an arc second a second: the seconds of a moment count.
TEST_F(ExactSkyTest, ASecondMovesTheSky) {
  const ExactSky sky = Sky();
  const core::DateTime ut = test::Moment("2000-01-01 12:00:00");
  EXPECT_EQ(DayOf(ut).Days, 2451545.0);
  EXPECT_EQ(DayOf(test::Moment("0100-01-01 00:00:00")).Days, 1757584.5);
  const double moved = sky.PositionOf(Point::Moon, ut + std::chrono::seconds(60)).Longitude -
                       sky.PositionOf(Point::Moon, ut).Longitude;
  EXPECT_NEAR(moved * 3600, 30, 6);
  const double risen =
      sky.AscendantAt(ut + std::chrono::seconds(4), {0, 0}) - sky.AscendantAt(ut, {0, 0});
  EXPECT_NEAR(risen * 60, 1, 0.15);
}

TEST_F(ExactSkyTest, TheAyanamsasDifferAndTheNodesAreOpposite) {
  const core::DateTime ut = test::Moment("2000-01-01 12:00:00");
  const ExactSky kp = Sky();
  const double sun = kp.PositionOf(Point::Sun, ut).Longitude;
  EXPECT_NEAR(kp.AyanamsaAt(ut), 23.7602, 0.01);
  // Apparent place of the Sun by the almanac: 280.3689 degrees.
  EXPECT_NEAR(sun + kp.AyanamsaAt(ut), 280.3689, 0.0005);
  const ExactSky kpNew = Sky(Reading::KpNew, 'T');
  EXPECT_NEAR(kpNew.AyanamsaAt(ut), kp.AyanamsaAt(ut), 0.03);
  EXPECT_GT(std::fabs(kpNew.AyanamsaAt(ut) - kp.AyanamsaAt(ut)), 0.0005);
  // Both skies may be asked in turn.
  EXPECT_EQ(kp.PositionOf(Point::Sun, ut).Longitude, sun);
  const astro::Position rahu = kpNew.PositionOf(Point::Rahu, ut);
  const astro::Position ketu = kpNew.PositionOf(Point::Ketu, ut);
  EXPECT_NEAR(std::fabs(rahu.Longitude - ketu.Longitude), 180, 1e-12);
  EXPECT_EQ(rahu.Speed, ketu.Speed);
  EXPECT_GT(std::fabs(rahu.Longitude - kp.PositionOf(Point::Rahu, ut).Longitude), 0.01);
  EXPECT_THROW(kp.PositionOf(Point::Ascendant, ut), std::invalid_argument);
}

TEST_F(ExactSkyTest, TheAscendantAloneIsTheFirstCusp) {
  const ExactSky sky = Sky();
  for (const double latitude : {-89.0, -67.0, -34.0, 0.0, 51.5, 66.5, 80.0}) {
    for (int hour = 0; hour < 24; ++hour) {
      const core::DateTime ut = test::Moment("2026-11-24") + std::chrono::hours(hour);
      EXPECT_NEAR(sky.AscendantAt(ut, {latitude, 20}), sky.CuspsAt(ut, {latitude, 20})[1], 1e-9);
    }
  }
}

// Cusps of a given Ascendant are those of the moment at which it rises by itself.
TEST_F(ExactSkyTest, AGivenAscendantHasTheHousesThatRiseWithIt) {
  const ExactSky sky = Sky();
  const core::DateTime ut = test::Moment("2026-11-24 10:00:00");
  for (const double latitude : {-33.9, 0.0, 19.07, 51.5, 65.0}) {
    const astro::Cusps risen = sky.CuspsAt(ut, {latitude, 72.88});
    const std::optional<astro::Cusps> given = sky.CuspsOfAscendant(UnitsOf(risen[1]), ut, latitude);
    ASSERT_TRUE(given);
    for (std::size_t house = 1; house <= 12; ++house) {
      EXPECT_NEAR(given->at(house), risen.at(house), 0.0005) << latitude << " " << house;
    }
  }
  for (const Span& sub : zodiac_.Spans(Depth::Sub)) {
    const std::optional<astro::Cusps> cusps = sky.CuspsOfAscendant(sub.Begin, ut, 19.07);
    ASSERT_TRUE(cusps);
    EXPECT_EQ(UnitsOf(cusps->at(1)), sub.Begin);
    EXPECT_EQ(UnitsOf(cusps->at(7)), OnCircle(sub.Begin + kUnitsOfCircle / 2));
  }
}

TEST_F(ExactSkyTest, ALatitudeMayHaveNoSuchAscendant) {
  const ExactSky sky = Sky();
  const core::DateTime ut = test::Moment("2026-11-24 10:00:00");
  // At 75 degrees north the signs around the winter solstice never rise.
  const Units solstice = UnitsOf(270 - sky.AyanamsaAt(ut));
  EXPECT_FALSE(sky.CuspsOfAscendant(solstice, ut, 75));
  EXPECT_FALSE(sky.CuspsOfAscendant(solstice, ut, 90));
  EXPECT_TRUE(sky.CuspsOfAscendant(solstice, ut, 66));
  EXPECT_TRUE(sky.CuspsOfAscendant(UnitsOf(1), ut, 66));
}

TEST_F(ExactSkyTest, HousesAreHalfOpen) {
  astro::Cusps cusps{};
  for (std::size_t house = 1; house <= 12; ++house) {
    cusps[house] = std::fmod(350 + 30.0 * static_cast<double>(house - 1), 360);
  }
  EXPECT_EQ(HouseOf(cusps, UnitsOf(350)), 1);
  EXPECT_EQ(HouseOf(cusps, UnitsOf(350) - 1), 12);
  EXPECT_EQ(HouseOf(cusps, 0), 1);
  EXPECT_EQ(HouseOf(cusps, UnitsOf(20) - 1), 1);
  EXPECT_EQ(HouseOf(cusps, UnitsOf(20)), 2);
}

// A cusp's sub holds from its first second up to the first that has another.
TEST_F(ExactSkyTest, AHoldIsCountedInWholeSeconds) {
  const ExactSky sky = Sky();
  const core::DateTime ut = test::Moment("1990-07-05 09:00:17");
  const Place mumbai{19.07283, 72.88261};
  const CuspHolds holds = HoldsOf(sky, zodiac_, ut, mumbai);
  const auto subAt = [&](std::size_t house, int away) {
    return zodiac_
        .SpanOf(UnitsOf(sky.CuspsAt(ut + std::chrono::seconds(away), mumbai)[house]), Depth::Sub)
        .Begin;
  };
  for (std::size_t house = 1; house <= 12; ++house) {
    const CuspHold hold = holds.at(house - 1);
    const Units now = subAt(house, 0);
    ASSERT_TRUE(hold.Since && hold.Until);
    EXPECT_LE(*hold.Since, 0);
    EXPECT_EQ(subAt(house, *hold.Since), now);
    EXPECT_NE(subAt(house, *hold.Since - 1), now);
    EXPECT_EQ(subAt(house, *hold.Until - 1), now);
    EXPECT_NE(subAt(house, *hold.Until), now);
  }
  // Until and since of a second later differ by that second, where no border lies between.
  const CuspHolds later = HoldsOf(sky, zodiac_, ut + std::chrono::seconds(1), mumbai);
  EXPECT_EQ(*later[0].Since, *holds[0].Since - 1);
  EXPECT_EQ(*later[0].Until, *holds[0].Until - 1);
}

// A sub that a sign border cuts in two: the arc goes to the end of the sub, in the direction of
// motion, and a hold ends at the sign.
TEST_F(ExactSkyTest, TheArcToTheBorderCrossesASignTheHoldDoesNot) {
  const ExactSky sky = Sky();
  const core::DateTime ut = test::Moment("2009-05-24 06:20:44");
  const core::Table planets = BuildExactPlanets(sky, zodiac_, ut, std::nullopt);
  const std::size_t mercury = 2;
  ASSERT_EQ(planets.At(mercury, ExactPlanetColumn::Planet).Text, "Mercury");
  EXPECT_EQ(planets.At(mercury, ExactPlanetColumn::R).Text, "R");
  EXPECT_EQ(planets.At(mercury, ExactPlanetColumn::Position).Text, "00°33'47\" Tau");
  EXPECT_EQ(planets.At(mercury, ExactPlanetColumn::ToBorder).Text, "1°20'27\"");
  EXPECT_EQ(planets.At(mercury, ExactPlanetColumn::House).Text, "");
  const std::size_t sun = 0;
  EXPECT_EQ(planets.At(sun, ExactPlanetColumn::ToBorder).Text, "0°40'08\"");
  const CuspHolds holds = HoldsOf(sky, zodiac_, ut, {19.07283, 72.88261});
  EXPECT_EQ(holds[11].Until, 132);
}

TEST_F(ExactSkyTest, HoldsAreWrittenWithSignAndMark) {
  astro::Cusps cusps{};
  CuspHolds holds{};
  holds[0] = {-42, 312};
  holds[1] = {0, 1800};
  const core::Table table = BuildExactCusps(zodiac_, cusps, holds);
  const auto texts = [&table](std::size_t row) {
    return table.At(row, ExactCuspColumn::Since).Text + " " +
           table.At(row, ExactCuspColumn::Until).Text;
  };
  EXPECT_EQ(texts(0), "-0:42 +5:12");
  EXPECT_EQ(texts(1), "-0:00 +30:00");
  EXPECT_EQ(texts(2), "…-30:00 …+30:00");
  EXPECT_EQ(BuildExactCusps(zodiac_, cusps, std::nullopt).At(0, ExactCuspColumn::Since).Text, "");
}

}  // namespace
}  // namespace orvex::exact
