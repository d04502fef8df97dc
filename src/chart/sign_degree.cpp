#include "chart/sign_degree.h"

#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

constexpr int kHundred = 100;
constexpr int kMinutes = 60;
constexpr int kDegreesOfSign = 30;
constexpr int kCircle = 360;

}  // namespace

std::optional<SignDegree> SignDegreeOf(const std::string& degree) {
  const std::optional<double> value = core::ParseNumber(degree);
  if (!value || *value < 0 || *value >= kCircle) {
    return std::nullopt;
  }
  const int hundredths =
      static_cast<int>(core::RoundToWhole(*value * kHundred)) % (kCircle * kHundred);
  const int degrees = hundredths / kHundred;
  const std::string sign = kSignLetters.at(static_cast<std::size_t>(degrees / kDegreesOfSign));
  const std::string within = core::WholeText(degrees % kDegreesOfSign);
  const int rest = hundredths % kHundred;
  const int minutes = (rest * kMinutes + kHundred / 2) / kHundred;
  // What a whole minute is stored as.
  const bool whole = (minutes * kHundred + kMinutes / 2) / kMinutes == rest;
  return whole ? SignDegree{within + "°" + core::PaddedWhole(minutes, 2) + "'", sign}
               : SignDegree{within + "." + core::PaddedWhole(rest, 2), sign};
}

}  // namespace orvex::chart
