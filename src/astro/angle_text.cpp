#include "astro/angle_text.h"

#include <cmath>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::astro {

namespace {

constexpr std::string_view kDegreeSign = "\u00B0";

std::string AngleText(double degrees, int degreeDigits) {
  const double absolute = std::fabs(degrees);
  const double fraction = absolute - static_cast<double>(core::Truncate(absolute));
  const std::int64_t minutes = core::Truncate(60 * fraction);
  const double seconds = 3600 * fraction - 60 * static_cast<double>(minutes);
  std::string secondsText = core::FixedText(seconds, 4);
  if (secondsText.find('.') == 1) {
    secondsText.insert(0, "0");
  }
  return core::PaddedWhole(core::Truncate(degrees), degreeDigits) + std::string(kDegreeSign) +
         core::PaddedWhole(minutes, 2) + "'" + secondsText;
}

// What the tools read back from DegreeText: whole degrees, and the minutes as a part of a degree.
struct ReadAngle {
  double WholeDegrees = 0;
  float Minutes = 0;
};

ReadAngle ReadBack(double degrees) {
  const std::string text = AngleText(degrees, 3);
  const std::size_t signAt = text.find(kDegreeSign);
  const std::string rest = text.substr(signAt + kDegreeSign.size());
  return {core::ToDouble(text.substr(0, signAt)),
          static_cast<float>(core::ToDouble(core::Split(rest, '\'').front()) / 60)};
}

}  // namespace

std::string DegreeText(double degrees) { return AngleText(degrees, 3); }

std::string LongitudeText(double degrees) { return AngleText(degrees, 1); }

std::string ChartDegreeText(double degrees) {
  const ReadAngle angle = ReadBack(degrees);
  return core::TwoDecimals(angle.WholeDegrees + static_cast<double>(angle.Minutes));
}

float DegreeToTheMinute(double degrees) {
  const ReadAngle angle = ReadBack(degrees);
  return static_cast<float>(angle.WholeDegrees) + angle.Minutes;
}

}  // namespace orvex::astro
