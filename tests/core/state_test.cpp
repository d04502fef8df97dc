#include <gtest/gtest.h>

#include "core/application_state.h"
#include "core/cell_colors.h"

namespace orvex::core {
namespace {

TEST(State, DefaultBandsAreTheAspectsWithTheirOrbs) {
  const std::pair<int, int> wanted[] = {{27, 33}, {55, 65},   {112, 128}, {42, 48},
                                        {85, 95}, {132, 138}, {147, 153}, {172, 188}};
  const AspectBandLimits bands = DefaultAspectBands();
  for (std::size_t i = 0; i < bands.size(); ++i) {
    EXPECT_EQ(bands[i].Low, wanted[i].first);
    EXPECT_EQ(bands[i].High, wanted[i].second);
  }
}

TEST(State, AnAngleHasTheColourOfTheFirstBandThatHoldsIt) {
  const AspectBandLimits bands = DefaultAspectBands();
  const std::pair<float, const char*> cases[] = {
      {27.0F, kGoodColor},     {26.99F, kNeutralColor},  {33.0F, kGoodColor},
      {33.01F, kNeutralColor}, {45.0F, kHardColor},      {60.0F, kGoodColor},
      {85.0F, kHardColor},     {84.99F, kNeutralColor},  {120.0F, kGoodColor},
      {180.0F, kHardColor},    {188.01F, kNeutralColor}, {0.0F, kNeutralColor}};
  for (const auto& [angle, color] : cases) {
    EXPECT_STREQ(AspectCellColor(bands, angle), color) << angle;
  }
  AspectBandLimits wide = bands;
  wide[3] = {20, 70};  // 45 degrees, tried behind 30, 60 and 120
  EXPECT_STREQ(AspectCellColor(wide, 60), kGoodColor);
  EXPECT_STREQ(AspectCellColor(wide, 50), kHardColor);
}

TEST(State, ColoursAreReadByPairs) {
  EXPECT_EQ(ColorFromHex("FF0000"), 255);
  EXPECT_EQ(ColorFromHex("CAFACB"), 202 + 250 * 256 + 203 * 65536);
  for (const char* bad : {"", "FFF", "GG0000", "FF00000", "-1-1-1"}) {
    EXPECT_THROW(ColorFromHex(bad), std::invalid_argument) << bad;
  }
  EXPECT_EQ(ValueCellColor(-1), "#FFFFFF");
  EXPECT_EQ(ValueCellColor(16777215), "#FFFFFF");
  EXPECT_EQ(ValueCellColor(0), "#FFFBB3");
}

TEST(State, SortCodesAreKnownInAnyCase) {
  const std::pair<const char*, const char*> cases[] = {
      {"BHD", "cm.BirthDate"}, {"cty", "ct.CityName"},
      {"Cln", "cm.FullName"},  {"CRD", "cm.CreatedDate"},
      {"EML", "cm.Email"},     {"mbl", "cm.Mobile"},
      {"", "cm.FullName"},     {"cm.id; drop table settings", "cm.FullName"}};
  for (const auto& [code, column] : cases) {
    EXPECT_EQ(SortColumnOfCode(code), column);
  }
}

}  // namespace
}  // namespace orvex::core
