#include "vedic/divisional.h"

#include <gtest/gtest.h>

namespace orvex::vedic {
namespace {

TEST(Divisional, EachDegreeFallsIntoItsPart) {
  struct {
    Division division;
    int sign;
    float degree;
    int wanted;
  } const cases[] = {{Division::Navamsha, 1, 3.33F, 1},    {Division::Navamsha, 1, 3.34F, 2},
                     {Division::Navamsha, 2, 10.00F, 12},  {Division::Navamsha, 2, 10.01F, 1},
                     {Division::Navamsha, 12, 30.00F, 12}, {Division::Dashamsha, 2, 2.99F, 10},
                     {Division::Dashamsha, 2, 3.00F, 11},  {Division::Dashamsha, 5, 30.00F, 2},
                     {Division::Dashamsha, 12, 0.00F, 8}};
  for (const auto& c : cases) {
    std::size_t row = 0;
    EXPECT_EQ(DivisionSign(c.division, c.sign, c.degree, row), c.wanted) << c.sign << c.degree;
  }
}

TEST(Divisional, EveryHundredthFindsARowAndPartsFollowTheirSigns) {
  for (int sign = 1; sign <= 12; ++sign) {
    for (int hundredths = 0; hundredths < 3000; ++hundredths) {
      const auto degree = static_cast<float>(hundredths / 100.0);
      std::size_t ninth = 99;
      std::size_t tenth = 99;
      const int d9 = DivisionSign(Division::Navamsha, sign, degree, ninth);
      const int d10 = DivisionSign(Division::Dashamsha, sign, degree, tenth);
      // The nine parts of all signs run on through the zodiac; ten start from the sign or its
      // ninth.
      ASSERT_EQ(d9, ((sign - 1) * 9 + static_cast<int>(ninth)) % 12 + 1);
      ASSERT_EQ(d10, (sign - 1 + (sign % 2 == 0 ? 8 : 0) + static_cast<int>(tenth)) % 12 + 1);
    }
  }
}

TEST(Divisional, ADegreeBetweenTwoRowsTakesTheRowBefore) {
  std::size_t row = 4;
  EXPECT_EQ(DivisionSign(Division::Navamsha, 5, 126.66F - 120.0F, row), 5);
  row = 0;
  EXPECT_EQ(DivisionSign(Division::Navamsha, 5, 126.66F - 120.0F, row), 1);
}

}  // namespace
}  // namespace orvex::vedic
