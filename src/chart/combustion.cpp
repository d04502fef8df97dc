#include "chart/combustion.h"

#include <algorithm>
#include <array>

#include "core/attempt.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

struct CombustOrb {
  const char* Planet;
  float Direct;      // degrees
  float Retrograde;  // degrees
};

// clang-format off
constexpr std::array<CombustOrb, 6> kOrbs = {{
    {"Moon",    12, 12},
    {"Mercury", 14, 12},
    {"Venus",   10,  8},
    {"Mars",    17, 17},
    {"Jupiter", 11, 11},
    {"Saturn",  15, 15},
}};
// clang-format on

}  // namespace

bool IsCombust(const std::string& planet, bool retrograde, const std::string& sunDegree,
               float longitude) {
  const auto* found = std::find_if(kOrbs.begin(), kOrbs.end(), [&planet](const CombustOrb& orb) {
    return orb.Planet == planet;
  });
  if (found == kOrbs.end()) {
    return false;
  }
  const float orb = retrograde ? found->Retrograde : found->Direct;
  const float sun = core::ToSingle(sunDegree);
  float low = sun - orb;
  if (low < 0) {
    low = 360 + low;
  }
  float high = sun + orb;
  if (sunDegree.size() == 1) {
    high += 360;
  }
  return low <= longitude && longitude <= high;
}

void MarkCombust(HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt([&] {
      const std::string& sun = PlanetText(model, RowOf(PlanetPlace::Sun), PlanetColumn::Degree);
      const bool combust = IsCombust(PlanetText(model, row, PlanetColumn::Planet),
                                     PlanetText(model, row, PlanetColumn::R) == "R", sun,
                                     core::ToSingle(PlanetText(model, row, PlanetColumn::Degree)));
      model.PlanetTable.At(row, PlanetColumn::C).Text = combust ? "C" : "";
    });
  }
}

}  // namespace orvex::chart
