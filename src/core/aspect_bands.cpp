#include "core/aspect_bands.h"

#include <algorithm>

namespace orvex::core {

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

}  // namespace orvex::core
