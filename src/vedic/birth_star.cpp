#include "vedic/birth_star.h"

#include <algorithm>
#include <span>

#include "chart/point_text.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/birth_star_groups.h"

namespace orvex::vedic {

namespace {

constexpr float kCircle = 360;
constexpr int kSagittarius = 9;
constexpr int kCapricorn = 10;

// The text of the first group that holds the name, "" where none does.
std::string TextOfName(std::span<const NameGroup> groups, std::string_view name) {
  for (const NameGroup& group : groups) {
    if (!name.empty() && std::count(group.Names.begin(), group.Names.end(), name) > 0) {
      return std::string(group.Text);
    }
  }
  return "";
}

std::string VasyaText(const std::string& moonRashi, int sign, double moonDegree) {
  constexpr double kSignDegrees = 30;
  constexpr double kHalfSign = 15;
  const bool firstHalf = moonDegree - kSignDegrees * (sign - 1) < kHalfSign;
  if (sign == kSagittarius) {
    return firstHalf ? "Dwipad" : "Chatushpad";
  }
  if (sign == kCapricorn) {
    return firstHalf ? "Chatushpad" : "Jalachar";
  }
  return TextOfName(kVasyas, moonRashi);
}

}  // namespace

std::string VarnaGanaText(const core::ReferenceData& reference, const std::string& moonRashi,
                          const std::string& moonStar) {
  const auto star =
      std::find_if(reference.Stars.begin(), reference.Stars.end(),
                   [&](const core::StarRow& row) { return row.StarName == moonStar; });
  const std::string gana = star == reference.Stars.end() ? "" : TextOfName(kGanas, star->Gana);
  return TextOfName(kVarnas, moonRashi) + gana;
}

std::string NadiYoniText(const std::string& moonStar) {
  return TextOfName(kNadis, moonStar) + TextOfName(kYonis, moonStar);
}

std::string VasyaRajjuText(const std::string& moonRashi, int sign, double moonDegree,
                           const std::string& moonStar) {
  return VasyaText(moonRashi, sign, moonDegree) + TextOfName(kRajjus, moonStar);
}

float BhriguBinduDegree(float moonDegree, float rahuDegree) {
  // The sum of the two singles is a double; only the half of it is a single again.
  double sum = static_cast<double>(moonDegree) + static_cast<double>(rahuDegree);
  if (rahuDegree >= moonDegree) {
    sum = sum > kCircle ? sum - kCircle : sum + kCircle;
  }
  return core::ToSingle(core::TwoDecimals(static_cast<float>(sum / 2)));
}

void FillBirthStarAttributes(const core::ReferenceData& reference, chart::HoroscopeModel& model) {
  using chart::PlanetColumn;
  constexpr std::size_t kMoon = chart::RowOf(chart::PlanetPlace::Moon);
  constexpr std::size_t kRahu = chart::RowOf(chart::PlanetPlace::Rahu);
  chart::HoroscopeCaptions& captions = model.Captions;
  const auto rashi = [&] { return chart::PlanetText(model, kMoon, PlanetColumn::Rashi); };
  const auto star = [&] { return chart::PlanetText(model, kMoon, PlanetColumn::Nakshatra); };
  const auto degree = [&](std::size_t row) {
    return chart::PlanetText(model, row, PlanetColumn::Degree);
  };

  core::Attempt([&] { captions.VarnaGana = VarnaGanaText(reference, rashi(), star()); });
  core::Attempt([&] { captions.NadiYoni = NadiYoniText(star()); });
  core::Attempt([&] {
    const std::string& sign = chart::PlanetTag(model, kMoon, PlanetColumn::Rashi);
    captions.VasyaRajju =
        VasyaRajjuText(rashi(), static_cast<int>(core::ParseWhole(sign).value_or(0)),
                       core::ToDouble(degree(kMoon)), star());
  });
  core::Attempt([&] {
    model.BhriguBinduDegree =
        BhriguBinduDegree(core::ToSingle(degree(kMoon)), core::ToSingle(degree(kRahu)));
    captions.BhriguBindu =
        chart::PointText(reference, chart::LookupDegree(model.BhriguBinduDegree));
  });
}

}  // namespace orvex::vedic
