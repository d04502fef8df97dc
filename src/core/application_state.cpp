#include "core/application_state.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace orvex::core {

namespace {

// clang-format off
constexpr std::array<std::pair<std::string_view, const char*>, 6> kSortColumns = {{
    {"BHD", "cm.BirthDate"},
    {"CTY", "ct.CityName"},
    {"CLN", "cm.FullName"},
    {"CRD", "cm.CreatedDate"},
    {"EML", "cm.Email"},
    {"MBL", "cm.Mobile"},
}};
// clang-format on

constexpr const char* kDefaultSortColumn = "cm.FullName";

}  // namespace

AspectBandLimits DefaultAspectBands() {
  AspectBandLimits bands;
  std::transform(kAspects.begin(), kAspects.end(), bands.begin(), [](const AspectBand& band) {
    return BandLimits{static_cast<std::int16_t>(band.Aspect - band.DefaultOrb),
                      static_cast<std::int16_t>(band.Aspect + band.DefaultOrb)};
  });
  return bands;
}

int AspectOfAngle(const AspectBandLimits& bands, float angle) {
  const auto holds = [angle](const BandLimits& band) {
    return static_cast<float>(band.Low) <= angle && angle <= static_cast<float>(band.High);
  };
  const auto* found = std::find_if(bands.begin(), bands.end(), holds);
  return found == bands.end() ? -1 : static_cast<int>(found - bands.begin());
}

std::string SortColumnOfCode(std::string_view code) {
  const std::string upper = UpperCase(code);
  const auto* found = std::find_if(kSortColumns.begin(), kSortColumns.end(),
                                   [&upper](const auto& entry) { return entry.first == upper; });
  return found == kSortColumns.end() ? kDefaultSortColumn : found->second;
}

}  // namespace orvex::core
