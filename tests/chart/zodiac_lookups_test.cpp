#include "chart/zodiac_lookups.h"

#include <gtest/gtest.h>

#include "chart/sub_sub_lord.h"
#include "core/exact_numbers.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

TEST(ZodiacLookups, BandsHoldBothBordersAndNothingBetweenThem) {
  const std::pair<double, int> cases[] = {{0, 1},     {29.99, 1}, {29.995, 0},  {30, 2},
                                          {59.99, 2}, {120, 5},   {359.99, 12}, {359.996, 0},
                                          {360, 0},   {-0.01, 0}, {1e9, 0}};
  for (const auto& [degree, rashi] : cases) {
    EXPECT_EQ(RashiOfDegree(degree), rashi) << degree;
    EXPECT_EQ(RashiOfSingle(static_cast<float>(degree)), rashi) << degree;
  }
  EXPECT_EQ(RashiName(4) + RashiLordName(4), "CancerMoon");
  EXPECT_EQ(RashiName(0) + RashiName(13) + RashiLordName(-1), "");
}

TEST(ZodiacLookups, EveryLongitudeHasItsLordsAndOneOutsideFails) {
  test::TestHome home;
  const auto session = home.Start();
  const core::ReferenceData& reference = session->Reference;
  for (int hundredths = 0; hundredths < 36000; hundredths += 3) {
    const double degree = hundredths / 100.0;
    const core::SubRow& sub = SubOfDegree(reference, degree);
    ASSERT_EQ(sub.RashiLord, RashiLordName(RashiOfDegree(degree))) << degree;
    ASSERT_EQ(sub.RasiLordNo, RashiOfDegree(degree)) << degree;
    ASSERT_EQ(sub.StarLord, StarOfDegree(reference, degree).Star->StarLord) << degree;
    ASSERT_EQ(StarInSign(reference, RashiOfDegree(degree), degree)->Pada,
              StarOfDegree(reference, degree).Pada);
    ASSERT_NO_THROW(PlanetOfName(reference, SubSubLord(reference, degree))) << degree;
  }
  EXPECT_THROW(SubOfDegree(reference, 360.01), LookupError);
  EXPECT_THROW(StarOfDegree(reference, -0.01), LookupError);
  EXPECT_EQ(PlanetNameOfAstroNumber(reference, 4), "Rahu");
  EXPECT_THROW(PlanetNameOfAstroNumber(reference, 10), LookupError);
  EXPECT_EQ(BeginOfSub(reference, 249), 357.89);
  EXPECT_THROW(BeginOfSub(reference, 250), LookupError);
}

TEST(ZodiacLookups, TheFirstRowThatHoldsAValueIsTheAnswer) {
  core::ReferenceData reference;
  reference.Subs = {{1, 0, 30, "Mars", 1, "Ketu", "Ketu"}, {2, 30, 60, "Venus", 2, "Sun", "Sun"}};
  EXPECT_EQ(SubOfDegree(reference, 30).AscNo, 1);
}

// The sub of Ketu at the head of Aries is 0.78 degrees wide; its parts end at 7/120, 27/120 ...
TEST(ZodiacLookups, ASubIsCutInNineFromItsOwnLord) {
  test::TestHome home;
  const auto session = home.Start();
  const std::pair<double, const char*> cases[] = {
      {0, "Ketu"},       {0.04, "Ketu"},   {0.06, "Venus"},  {0.17, "Venus"},
      {0.20, "Sun"},     {0.24, "Moon"},   {0.30, "Mars"},   {0.40, "Rahu"},
      {0.50, "Jupiter"}, {0.60, "Saturn"}, {0.70, "Mercury"}};
  for (const auto& [degree, lord] : cases) {
    EXPECT_EQ(SubSubLord(session->Reference, degree), lord) << degree;
  }
}

}  // namespace
}  // namespace orvex::chart
