#include "chart/sub_sub_lord.h"

#include "chart/dasha_cycle.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

double RoundedHundredths(double value) { return core::ToDouble(core::TwoDecimals(value)); }

}  // namespace

std::string SubSubLord(const core::ReferenceData& reference, double degree) {
  const core::SubRow& sub = SubOfDegree(reference, degree);
  const double begin = RoundedHundredths(sub.AscPointBegin);
  const double span = RoundedHundredths(RoundedHundredths(sub.AscPointEnd) - begin);
  double current = begin;
  for (const DashaPlanet& lord : RotationFrom(DashaCycleOf(reference), sub.SubLord)) {
    const double width = lord.Years / kCycleYears * span;
    if (current <= degree && degree <= current + width) {
      return lord.Name;
    }
    current = RoundedHundredths(current + width);
  }
  return sub.SubLord;
}

}  // namespace orvex::chart
