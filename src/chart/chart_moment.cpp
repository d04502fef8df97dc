#include "chart/chart_moment.h"

#include <cmath>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr float kMinutesOfHour = 60;
constexpr float kDegreesOfHour = 15;
constexpr float kMinutesOfDegree = 4;

core::DateTime AddMinutes(core::DateTime moment, float minutes) {
  return core::DateAdd(core::DateInterval::Minutes, core::RoundToWhole(minutes), moment);
}

bool HasMinus(const std::string& text) { return core::Contains(text, "-"); }

}  // namespace

core::DateTime ChartMomentUt(core::DateTime local, const std::string& offset,
                             const std::string& longitude, double cityOffset) {
  const float m = core::ToSingle(offset) * kMinutesOfHour;
  if (m == 0) {
    return local;
  }
  if (!HasMinus(offset)) {
    return AddMinutes(local, -m);
  }
  const auto cityMeridian = static_cast<float>(cityOffset * static_cast<double>(kDegreesOfHour));
  const float k = (core::ToSingle(longitude) + cityMeridian) * kMinutesOfDegree;
  return AddMinutes(local, HasMinus(longitude) ? m - k : m + k);
}

core::DateTime ChosenMomentUt(char birthMoment, core::DateTime local, const std::string& offset,
                              const std::string& longitude, double cityOffset) {
  return birthMoment == 'C' ? PlainMomentUt(local, core::ToSingle(offset))
                            : ChartMomentUt(local, offset, longitude, cityOffset);
}

core::DateTime InstantMomentUt(core::DateTime local, float offset, float longitude) {
  const float m = offset * kMinutesOfHour;
  if (m == 0) {
    return local;
  }
  if (offset > 0) {
    return AddMinutes(local, -m);
  }
  const float k = (offset * kDegreesOfHour + longitude) * kMinutesOfDegree;
  return AddMinutes(local, std::fabs(longitude < 0 ? m - k : m + k));
}

core::DateTime PlainMomentUt(core::DateTime local, float offset) {
  const float m = offset * kMinutesOfHour;
  return m == 0 ? local : AddMinutes(local, -m);
}

}  // namespace orvex::chart
