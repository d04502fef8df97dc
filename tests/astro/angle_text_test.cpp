#include "astro/angle_text.h"

#include <gtest/gtest.h>

namespace orvex::astro {
namespace {

TEST(AngleText, DegreesMinutesAndSecondsAreNotCarried) {
  struct {
    double degrees;
    const char* text;
    const char* longitudeText;
  } const cases[] = {
      {5.5, "005\u00b030'00.0000", "5\u00b030'00.0000"},
      {359.99999, "359\u00b059'59.9640", "359\u00b059'59.9640"},
      {-0.5, "000\u00b030'00.0000", "0\u00b030'00.0000"},
      {-5.25, "-005\u00b015'00.0000", "-5\u00b015'00.0000"},
      {0, "000\u00b000'00.0000", "0\u00b000'00.0000"},
      {123.456789, "123\u00b027'24.4404", "123\u00b027'24.4404"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(DegreeText(c.degrees), c.text);
    EXPECT_EQ(LongitudeText(c.degrees), c.longitudeText);
  }
}

TEST(AngleText, AChartDegreeIsCutToTheMinuteBeforeItIsRounded) {
  const std::pair<double, const char*> cases[] = {
      {29.99999, "29.98"}, {29.983333333, "29.97"}, {29.98333334, "29.98"}, {30.0, "30.00"},
      {0.0166, "0.00"},    {0.01667, "0.02"},       {359.99999, "359.98"},  {180.0, "180.00"},
      {100.95, "100.95"},  {45.5, "45.50"}};
  for (const auto& [degrees, text] : cases) {
    EXPECT_EQ(ChartDegreeText(degrees), text) << degrees;
  }
}

}  // namespace
}  // namespace orvex::astro
