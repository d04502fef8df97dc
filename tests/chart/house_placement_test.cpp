#include "chart/house_placement.h"

#include <gtest/gtest.h>

#include "core/exact_numbers.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

// Cusps from their degrees, with signs by thirty degrees.
std::vector<CuspRow> CuspsAt(const std::vector<const char*>& degrees) {
  std::vector<CuspRow> cusps;
  for (std::size_t i = 0; i < degrees.size(); ++i) {
    const int rashi = static_cast<int>(core::Floor(core::ToDouble(degrees[i]) / 30)) + 1;
    cusps.push_back(
        {static_cast<int>(i) + 1, degrees[i], degrees[(i + 1) % degrees.size()], rashi});
  }
  return cusps;
}

struct Placed {
  std::optional<int> RashiHouse;
  std::optional<int> ChalitHouse;
};

Placed PlaceOne(const std::vector<CuspRow>& cusps, const char* degree) {
  static test::TestHome home;
  static const auto session = home.Start();
  PlanetRow planet;
  planet.Planet = "Sun";
  planet.Degree = degree;
  std::vector<PlanetRow> planets = {planet};
  PlacePlanets(session->Reference, cusps, planets);
  return {planets[0].RashiHouse, planets[0].ChalitHouse};
}

TEST(HousePlacement, EqualHousesFromTenDegrees) {
  const auto cusps = CuspsAt({"10.00", "40.00", "70.00", "100.00", "130.00", "160.00", "190.00",
                              "220.00", "250.00", "280.00", "310.00", "340.00"});
  struct {
    const char* degree;
    int rashiHouse;
    int chalitHouse;
  } const cases[] = {{"5.00", 1, 12},  // over 0 degrees Aries
                     {"345.00", 12, 12}, {"10.00", 1, 1},
                     {"39.99", 2, 1},    {"40.00", 2, 2},  // on a cusp: the later house
                     {"29.99", 1, 1},    {"30.00", 2, 1},
                     {"359.98", 12, 12}, {"0.00", 1, 12}};
  for (const auto& c : cases) {
    const Placed placed = PlaceOne(cusps, c.degree);
    EXPECT_EQ(placed.RashiHouse, c.rashiHouse) << c.degree;
    EXPECT_EQ(placed.ChalitHouse, c.chalitHouse) << c.degree;
  }
}

TEST(HousePlacement, TheHouseOfAriesLeadsToEachSignAndBack) {
  const int houses[] = {1, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
  for (int sign = 1; sign <= 12; ++sign) {
    EXPECT_EQ(HouseOfAries(sign), houses[sign - 1]);
    EXPECT_EQ(RashiOfHouse(1, HouseOfAries(sign)), sign);
    EXPECT_EQ(RashiOfHouse(HouseOfAries(sign), HouseOfAries(sign)), 1);
  }
  // A stored chart whose first cusp has no sign.
  EXPECT_EQ(HouseOfAries(0), 14);
  EXPECT_EQ(RashiOfHouse(12, 14), 11);
}

// High latitude: two cusps in Taurus and in Scorpio, none in Gemini and Sagittarius.
TEST(HousePlacement, TheLaterOfTwoCuspsAndTheSignBehindAnInterceptedOne) {
  const auto cusps = CuspsAt({"2.00", "31.00", "59.00", "91.00", "121.00", "151.00", "182.00",
                              "211.00", "239.00", "271.00", "301.00", "331.00"});
  struct {
    const char* degree;
    std::optional<int> rashiHouse;
    int chalitHouse;
  } const cases[] = {{"45.00", 3, 2}, {"75.00", 4, 3}, {"225.00", 9, 8}, {"255.00", 10, 9}};
  for (const auto& c : cases) {
    const Placed placed = PlaceOne(cusps, c.degree);
    EXPECT_EQ(placed.RashiHouse, c.rashiHouse) << c.degree;
    EXPECT_EQ(placed.ChalitHouse, c.chalitHouse) << c.degree;
  }
}

TEST(HousePlacement, TwoSignsWithoutACuspLeaveTheHouseEmpty) {
  const auto cusps = CuspsAt({"2.00", "10.00", "20.00", "100.00", "101.00", "102.00", "182.00",
                              "190.00", "200.00", "280.00", "281.00", "282.00"});
  EXPECT_EQ(PlaceOne(cusps, "45.00").RashiHouse, std::nullopt);
  EXPECT_EQ(PlaceOne(cusps, "75.00").RashiHouse, 4);
  EXPECT_EQ(PlaceOne(cusps, "45.00").ChalitHouse, 3);
}

// Within the polar circles houses can run backwards: none of them is tested, and the run goes on.
TEST(HousePlacement, OfTwoSpansThatDoNotAscendTheLaterTakesWhatNoSpanHolds) {
  const auto cusps = CuspsAt({"340.00", "300.00", "310.00", "320.00", "320.00", "321.00", "322.00",
                              "323.00", "324.00", "325.00", "326.00", "327.00"});
  struct {
    const char* degree;
    std::optional<int> rashiHouse;
    int chalitHouse;
  } const cases[] = {{"100.00", std::nullopt, 4},  // from 340 to 300, then from 320 to 320
                     {"350.00", 1, 4},
                     {"305.00", 12, 2},
                     {"335.00", 1, 12},  // from 327 to 340
                     {"320.00", 12, 5}};
  for (const auto& c : cases) {
    const Placed placed = PlaceOne(cusps, c.degree);
    EXPECT_EQ(placed.RashiHouse, c.rashiHouse) << c.degree;
    EXPECT_EQ(placed.ChalitHouse, c.chalitHouse) << c.degree;
  }
}

}  // namespace
}  // namespace orvex::chart
