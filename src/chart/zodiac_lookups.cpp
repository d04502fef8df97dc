#include "chart/zodiac_lookups.h"

#include <algorithm>
#include <array>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

struct SignBand {
  const char* Name;
  const char* Lord;
  double Low;
  double High;
};

// clang-format off
constexpr std::array<SignBand, 12> kSigns = {{
    {"Aries",       "Mars",      0,    29.99},
    {"Taurus",      "Venus",    30,    59.99},
    {"Gemini",      "Mercury",  60,    89.99},
    {"Cancer",      "Moon",     90,   119.99},
    {"Leo",         "Sun",     120,   149.99},
    {"Virgo",       "Mercury", 150,   179.99},
    {"Libra",       "Venus",   180,   209.99},
    {"Scorpio",     "Mars",    210,   239.99},
    {"Sagittarius", "Jupiter", 240,   269.99},
    {"Capricorn",   "Saturn",  270,   299.99},
    {"Aquarius",    "Saturn",  300,   329.99},
    {"Pisces",      "Jupiter", 330,   359.99},
}};
// clang-format on

bool IsSign(int rashi) { return rashi >= 1 && rashi <= static_cast<int>(kSigns.size()); }

const SignBand& BandOf(int rashi) { return kSigns.at(static_cast<std::size_t>(rashi) - 1); }

template <typename Number>
int FirstBand(Number degree) {
  const auto holds = [degree](const SignBand& band) {
    return static_cast<Number>(band.Low) <= degree && degree <= static_cast<Number>(band.High);
  };
  const auto* found = std::find_if(kSigns.begin(), kSigns.end(), holds);
  return found == kSigns.end() ? 0 : static_cast<int>(found - kSigns.begin()) + 1;
}

template <typename Rows, typename Holds>
const auto* FirstRow(const Rows& rows, Holds holds) {
  const auto found = std::find_if(rows.begin(), rows.end(), holds);
  return found == rows.end() ? nullptr : &*found;
}

template <typename Found>
const auto& Needed(const Found* row, const char* what) {
  if (row == nullptr) {
    throw LookupError(what);
  }
  return *row;
}

StarAndPada WithStar(const core::ReferenceData& reference, const core::PadaRow& pada) {
  const auto* star = FirstRow(
      reference.Stars, [&pada](const core::StarRow& row) { return row.Sequence == pada.StarId; });
  return {&Needed(star, "a quarter without its star"), &pada};
}

}  // namespace

std::string RashiName(int rashi) { return IsSign(rashi) ? BandOf(rashi).Name : ""; }

std::string RashiLordName(int rashi) { return IsSign(rashi) ? BandOf(rashi).Lord : ""; }

int RashiOfDegree(double degree) { return FirstBand(degree); }

int RashiOfSingle(float degree) { return FirstBand(degree); }

std::string PlanetNameOfAstroNumber(const core::ReferenceData& reference, int number) {
  const auto* planet = FirstRow(reference.Planets, [number](const core::PlanetInfo& row) {
    return row.AstroNumber == number;
  });
  return Needed(planet, "no planet of that number").PlanetName;
}

double LookupDegree(float degree) { return core::ToDouble(core::SingleText(degree)); }

const core::SubRow& SubOfDegree(const core::ReferenceData& reference, double degree) {
  return Needed(FirstRow(reference.Subs,
                         [degree](const core::SubRow& row) {
                           return row.AscPointBegin <= degree && degree <= row.AscPointEnd;
                         }),
                "a degree that no sub holds");
}

double BeginOfSub(const core::ReferenceData& reference, int horaryNumber) {
  const auto* sub = FirstRow(reference.Subs, [horaryNumber](const core::SubRow& row) {
    return row.AscNo == horaryNumber;
  });
  return Needed(sub, "no sub of that number").AscPointBegin;
}

StarAndPada StarOfDegree(const core::ReferenceData& reference, double degree) {
  const auto* pada = FirstRow(reference.Padas, [degree](const core::PadaRow& row) {
    return row.StartCDegree <= degree && degree <= row.EndCDegree;
  });
  return WithStar(reference, Needed(pada, "a degree that no star holds"));
}

std::optional<StarAndPada> StarInSign(const core::ReferenceData& reference, int rashi,
                                      double degree) {
  const auto* pada = FirstRow(reference.Padas, [=](const core::PadaRow& row) {
    return row.Rashi == rashi && row.StartCDegree <= degree && degree <= row.EndCDegree;
  });
  return pada == nullptr ? std::nullopt : std::optional(WithStar(reference, *pada));
}

StarAndPada StarOfSignDegree(const core::ReferenceData& reference, int rashi, double degreeInSign) {
  const auto* pada = FirstRow(reference.Padas, [=](const core::PadaRow& row) {
    return row.Rashi == rashi && row.StartDegree <= degreeInSign && degreeInSign <= row.EndDegree;
  });
  return WithStar(reference, Needed(pada, "a degree that no star of the sign holds"));
}

const core::PlanetInfo& PlanetOfName(const core::ReferenceData& reference,
                                     const std::string& name) {
  return Needed(FirstRow(reference.Planets,
                         [&name](const core::PlanetInfo& row) { return row.PlanetName == name; }),
                "no planet of that name");
}

std::string PlanetCode(const std::string& planetName) {
  return core::UpperCase(core::FirstCharacters(planetName, 2));
}

}  // namespace orvex::chart
