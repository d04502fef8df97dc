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

}  // namespace

std::string DegreeText(double degrees) { return AngleText(degrees, 3); }

std::string LongitudeText(double degrees) { return AngleText(degrees, 1); }

std::string ChartDegreeText(double degrees) {
  const std::string text = DegreeText(degrees);
  const std::size_t signAt = text.find(kDegreeSign);
  const std::string rest = text.substr(signAt + kDegreeSign.size());
  const double whole = core::ToDouble(text.substr(0, signAt));
  const auto minutes = static_cast<float>(core::ToDouble(core::Split(rest, '\'').front()) / 60);
  return core::TwoDecimals(whole + static_cast<double>(minutes));
}

}  // namespace orvex::astro
