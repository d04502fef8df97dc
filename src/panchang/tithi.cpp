#include "panchang/tithi.h"

#include <algorithm>
#include <array>

#include "core/exact_numbers.h"

namespace orvex::panchang {

namespace {

constexpr float kCircle = 360;

// clang-format off
constexpr std::array<const char*, 27> kYogas = {
    "Vishakumbha", "Priti",     "Aayushman", "Saubhagya", "Shobhana", "Atiganda",   "Sukarma",
    "Dhriti",      "Shoola",    "Ganda",     "Vriddhi",   "Dhruva",   "Vyaghaata",  "Harshana",
    "Vajra",       "Siddhi",    "Vyatipaata", "Variyaana", "Parigha", "Shiva",      "Siddha",
    "Saaddhya",    "Shubha",    "Shukla",    "Brahma",    "Indra",    "Vaidhriti",
};
// clang-format on

std::string TithiPart(const core::TithiRow& row) {
  if (row.TithiType == "S") {
    return "Sukla - " + row.Tithi;
  }
  if (row.TithiType == "K") {
    return "Krishna - " + row.Tithi;
  }
  if (row.TithiType == "P") {
    return "Purnima - " + row.Tithi;
  }
  return row.TithiType == "A" ? "Amavasya - " + row.Tithi : "";
}

}  // namespace

std::string TithiKaranOf(const core::ReferenceData& reference, float moonDegree, float sunDegree) {
  const float ahead =
      moonDegree >= sunDegree ? moonDegree - sunDegree : (kCircle + moonDegree) - sunDegree;
  const double angle = core::ToDouble(core::SingleText(ahead));
  const auto found = std::find_if(reference.Tithis.begin(), reference.Tithis.end(),
                                  [angle](const core::TithiRow& row) {
                                    return row.StartDegree <= angle && angle <= row.EndDegree;
                                  });
  return found == reference.Tithis.end() ? "N/A*N/A" : TithiPart(*found) + "*" + found->Karan;
}

std::string YogaOf(float a, float b) {
  // 13.33 and not 13 1/3: the yoga near the end of the circle depends on it.
  constexpr double kYogaDegrees = 13.33;
  constexpr auto kCount = static_cast<float>(kYogas.size());
  const double sum = static_cast<double>(a) + static_cast<double>(b);
  float yogas = core::ToSingle(core::FixedText(sum / kYogaDegrees, 3));
  if (yogas > kCount) {
    yogas -= kCount;
  }
  const std::int64_t whole = core::Truncate(yogas);
  const std::int64_t index = static_cast<float>(whole) == yogas ? whole : whole + 1;
  const bool known = index >= 1 && index <= static_cast<std::int64_t>(kYogas.size());
  return known ? kYogas.at(static_cast<std::size_t>(index) - 1) : "";
}

}  // namespace orvex::panchang
