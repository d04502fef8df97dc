#include "chart/house_placement.h"

#include <algorithm>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

struct CuspSpan {
  int Cusp;
  int Rashi;
  float Start;
  float End;

  bool Holds(float degree) const { return Start <= degree && degree <= End; }
  // False for the house that spans 0 degrees Aries.
  bool Ascends() const { return Start < End; }
};

std::vector<CuspSpan> SpansOf(const std::vector<CuspRow>& cusps) {
  std::vector<CuspSpan> spans;
  for (const CuspRow& cusp : cusps) {
    spans.push_back(
        {cusp.Cusp, cusp.RashiHouse, core::ToSingle(cusp.DegStart), core::ToSingle(cusp.DegEnd)});
  }
  return spans;
}

// The sign of a degree; one that no sign holds keeps the sign found before.
void KeepRashi(float degree, int& rashi) {
  const int found = RashiOfSingle(degree);
  rashi = found == 0 ? rashi : found;
}

std::optional<int> FirstCuspInSign(const std::vector<CuspSpan>& spans, int rashi) {
  const auto found = std::find_if(spans.begin(), spans.end(),
                                  [rashi](const CuspSpan& span) { return span.Rashi == rashi; });
  return found == spans.end() ? std::nullopt : std::optional(found->Cusp);
}

// The first pass. Two cusps in one sign, or a planet on a cusp: the later cusp counts.
void PlaceByCusps(const core::ReferenceData& reference, const std::vector<CuspSpan>& spans,
                  int& rashi, PlanetRow& planet) {
  const float degree = core::ToSingle(planet.Degree);
  const core::SubRow& sub = SubOfDegree(reference, LookupDegree(degree));
  KeepRashi(degree, rashi);
  for (const CuspSpan& span : spans) {
    if (span.Rashi == rashi) {
      planet.RashiHouse = span.Cusp;
    }
    if (span.Holds(degree)) {
      planet.ChalitHouse = span.Cusp;
    }
  }
  planet.StarLord = sub.StarLord;
  planet.SubLord = sub.SubLord;
}

// The second pass: no cusp lies in the planet's sign. The house of the next sign counts, one sign
// ahead only. The span over 0 degrees Aries is taken without any test.
void PlaceIntercepted(const std::vector<CuspSpan>& spans, int& rashi, PlanetRow& planet) {
  const float degree = core::ToSingle(planet.Degree);
  for (const CuspSpan& span : spans) {
    if (span.Ascends() && !span.Holds(degree)) {
      continue;
    }
    KeepRashi(degree, rashi);
    const int next = rashi == 12 ? 1 : rashi + 1;
    if (FirstCuspInSign(spans, rashi)) {
      planet.RashiHouse = span.Cusp;
    } else if (const std::optional<int> cusp = FirstCuspInSign(spans, next)) {
      planet.RashiHouse = cusp;
    }
  }
}

// The third pass. The span over 0 degrees Aries is taken without any test and the run goes on.
void PlaceOverAries(const std::vector<CuspSpan>& spans, PlanetRow& planet) {
  const float degree = core::ToSingle(planet.Degree);
  for (const CuspSpan& span : spans) {
    if (!span.Ascends() || span.Holds(degree)) {
      planet.ChalitHouse = span.Cusp;
    }
  }
}

}  // namespace

int HouseOfAries(int firstRashi) { return firstRashi == 1 ? 1 : 14 - firstRashi; }

int RashiOfHouse(int house, int houseOfAries) {
  constexpr int kSigns = 12;
  return ((house - houseOfAries) % kSigns + kSigns) % kSigns + 1;
}

void PlacePlanets(const core::ReferenceData& reference, const std::vector<CuspRow>& cusps,
                  std::vector<PlanetRow>& planets) {
  const std::vector<CuspSpan> spans = SpansOf(cusps);
  int rashi = 0;
  for (PlanetRow& planet : planets) {
    PlaceByCusps(reference, spans, rashi, planet);
  }
  for (PlanetRow& planet : planets) {
    if (!planet.RashiHouse) {
      PlaceIntercepted(spans, rashi, planet);
    }
  }
  for (PlanetRow& planet : planets) {
    if (!planet.ChalitHouse) {
      PlaceOverAries(spans, planet);
    }
  }
}

}  // namespace orvex::chart
