#include "chart/point_text.h"

#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

std::string PointText(const core::ReferenceData& reference, double degree) {
  std::string text;
  core::Attempt([&] {
    const core::SubRow& sub = SubOfDegree(reference, degree);
    const std::string sign = RashiName(RashiOfDegree(degree));
    text = core::TwoDecimals(degree) + "/" + core::FirstCharacters(sign, 3) + " (" + sub.RashiLord +
           "/" + sub.StarLord + "/" + sub.SubLord + ")";
  });
  core::Attempt([&] {
    const StarAndPada star = StarOfDegree(reference, degree);
    text += "  |  " + star.Star->StarName + " - Pada " + core::WholeText(star.Pada->Pada);
  });
  return text;
}

}  // namespace orvex::chart
