#include "core/exact_numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orvex::core {
namespace {

TEST(ExactNumbers, TwoDecimalsRoundTheDecimalTextHalfAwayFromZero) {
  struct {
    double value;
    const char* text;
  } const cases[] = {
      {0, "0.00"},
      {-0.0, "0.00"},
      {5, "5.00"},
      {0.004999, "0.00"},
      {0.005, "0.01"},
      {-0.005, "-0.01"},
      {-0.004, "0.00"},
      {1.005, "1.01"},
      {2.675, "2.68"},
      {1.0049999, "1.00"},
      {359.995, "360.00"},
      {359.994999, "359.99"},
      {59.995, "60.00"},
      {9.995, "10.00"},
      {99.995, "100.00"},
      {0.994999, "0.99"},
      {0.995, "1.00"},
      {-359.995, "-360.00"},
      {123456.785, "123456.79"},
      {1e-20, "0.00"},
      {29.983333333, "29.98"},
      {0.1 + 0.2, "0.30"},
      {1e15, "1000000000000000.00"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(TwoDecimals(c.value), c.text) << c.value;
  }
}

TEST(ExactNumbers, ASingleIsRoundedOnItsSevenDigits) {
  struct {
    float value;
    const char* text;
    const char* twoDecimals;
  } const cases[] = {
      {13.34F, "13.34", "13.34"},
      {20.625F, "20.625", "20.63"},
      {25.564997F, "25.565", "25.57"},
      {25.56494F, "25.56494", "25.56"},
      {359.99F, "359.99", "359.99"},
      {0.05F, "0.05", "0.05"},
      {-0.5F, "-0.5", "-0.50"},
      {16777216.0F, "16777220", "16777220.00"},
      {0.1F + 0.2F, "0.3", "0.30"},
      {100.0F, "100", "100.00"},
      {55.309268951416016F, "55.30927", "55.31"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SingleText(c.value), c.text);
    EXPECT_EQ(TwoDecimals(c.value), c.twoDecimals);
  }
}

TEST(ExactNumbers, ADoubleHasFifteenDigitsAndNoExponent) {
  struct {
    double value;
    const char* text;
  } const cases[] = {
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {2.0 / 3, "0.666666666666667"},
      {5, "5"},
      {-0.0, "0"},
      {1e20, "100000000000000000000"},
      {1e-7, "0.0000001"},
      {72.88261, "72.88261"},
      {-74.00597, "-74.00597"},
      {999999999999999.9, "1000000000000000"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(DoubleText(c.value), c.text);
  }
  EXPECT_THROW(DoubleText(std::numeric_limits<double>::infinity()), std::domain_error);
  EXPECT_THROW(TwoDecimals(std::nan("")), std::domain_error);
}

TEST(ExactNumbers, EveryHundredthOfTheCircleKeepsItsTextInBothPrecisions) {
  for (int hundredths = -36000; hundredths <= 36000; ++hundredths) {
    const std::string text = TwoDecimals(hundredths / 100.0);
    ASSERT_EQ(RoundToWhole(ToDouble(text) * 100), hundredths);
    ASSERT_EQ(TwoDecimals(ToSingle(text)), text);
  }
}

TEST(ExactNumbers, HalvesGoToTheEvenNeighbour) {
  struct {
    double value;
    std::int64_t rounded;
    std::int64_t truncated;
    std::int64_t floor;
  } const cases[] = {
      {0.5, 0, 0, 0},          {1.5, 2, 1, 1},     {2.5, 2, 2, 2},       {-0.5, 0, 0, -1},
      {-1.5, -2, -1, -2},      {-2.5, -2, -2, -3}, {2.4999999, 2, 2, 2}, {2.5000001, 3, 2, 2},
      {296.02, 296, 296, 296}, {-7, -7, -7, -7},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(RoundToWhole(c.value), c.rounded) << c.value;
    EXPECT_EQ(Truncate(c.value), c.truncated) << c.value;
    EXPECT_EQ(Floor(c.value), c.floor) << c.value;
  }
  EXPECT_THROW(RoundToWhole(1e19), std::out_of_range);
}

TEST(ExactNumbers, OnlyPlainNumbersAreTaken) {
  const std::pair<const char*, double> numbers[] = {{"5", 5},
                                                    {" 5 ", 5},
                                                    {"+5", 5},
                                                    {"-5.5", -5.5},
                                                    {"5.", 5},
                                                    {".5", 0.5},
                                                    {"-.5", -0.5},
                                                    {"1e2", 100},
                                                    {"0", 0},
                                                    {"007", 7},
                                                    {"72.88261", 72.88261}};
  for (const auto& [text, value] : numbers) {
    ASSERT_TRUE(IsNumeric(text)) << text;
    EXPECT_EQ(*ParseNumber(text), value) << text;
  }
  const std::string tooLong = "0." + std::string(63, '1');
  for (const char* text : {"", " ", "-", "+", ".", "+-5", "--5", "1,5", "0x10", "inf", "nan", "5a",
                           "5 5", "1e", "1e999", "\u0665", tooLong.c_str()}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
  EXPECT_THROW(ToDouble("five"), std::invalid_argument);
}

TEST(ExactNumbers, WholeNumbersHaveNoFractionAndPadKeepsTheSign) {
  EXPECT_EQ(ParseWhole(" -12 "), -12);
  EXPECT_EQ(ParseWhole("+12"), 12);
  for (const char* text : {"", "1.0", "1e2", "+-1", "99999999999999999999", "x"}) {
    EXPECT_FALSE(ParseWhole(text)) << text;
  }
  EXPECT_EQ(PaddedWhole(5, 2), "05");
  EXPECT_EQ(PaddedWhole(-5, 3), "-005");
  EXPECT_EQ(PaddedWhole(1234, 2), "1234");
  EXPECT_EQ(WholeText(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
}

}  // namespace
}  // namespace orvex::core
