#include "exact/exact_zodiac.h"

#include <algorithm>
#include <cmath>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::exact {

namespace {

constexpr std::size_t kLords = 9;
constexpr Units kYearsOfCycle = 120;
constexpr Units kSubUnitsOfYear = kUnitsOfStar / kYearsOfCycle;

std::size_t SignIndex(Units units) { return static_cast<std::size_t>(units / kUnitsOfSign); }

Span Common(Span a, Span b) { return {std::max(a.Begin, b.Begin), std::min(a.End, b.End)}; }

// Minutes and seconds of an arc, two digits each.
std::string MinutesAndSeconds(Units arc) {
  return core::PaddedWhole(arc % kUnitsOfDegree / kUnitsOfMinute, 2) + "'" +
         core::PaddedWhole(arc % kUnitsOfMinute / kUnitsOfSecond, 2) + "\"";
}

constexpr std::string_view kDegreeSign = "\u00B0";

}  // namespace

Units UnitsOf(double longitude) {
  return OnCircle(core::Floor(longitude * static_cast<double>(kUnitsOfDegree)));
}

Units OnCircle(Units units) {
  const Units rest = units % kUnitsOfCircle;
  return rest < 0 ? rest + kUnitsOfCircle : rest;
}

double DegreesOf(Units units) {
  const double degrees = static_cast<double>(units) / static_cast<double>(kUnitsOfDegree);
  // Where the division rounds down, the way back would end in the unit before.
  return degrees * static_cast<double>(kUnitsOfDegree) < static_cast<double>(units)
             ? std::nextafter(degrees, 2 * static_cast<double>(kUnitsOfCircle))
             : degrees;
}

std::string ArcText(Units arc) {
  return core::PaddedWhole(arc / kUnitsOfDegree, 1) + std::string(kDegreeSign) +
         MinutesAndSeconds(arc);
}

ExactZodiac::ExactZodiac(const core::ReferenceData& reference) {
  for (std::size_t sign = 0; sign < signNames_.size(); ++sign) {
    signNames_[sign] = reference.Signs.at(sign).Zodiac;
    signLords_[sign] = reference.Signs.at(sign).RulingPlanet;
  }
  for (const core::PlanetInfo& planet : reference.Planets) {
    const auto place = static_cast<std::size_t>(planet.DashaSequence - 1);
    cycle_.at(place) = planet.PlanetName;
    years_.at(place) = planet.DashaYears;
  }
}

ExactZodiac::Part ExactZodiac::PartAt(Units units, Units begin, std::size_t firstLord,
                                      Units yearUnits) const {
  std::size_t lord = firstLord;
  Units end = begin + years_[lord] * yearUnits;
  while (units >= end) {
    lord = (lord + 1) % kLords;
    begin = end;
    end += years_[lord] * yearUnits;
  }
  return {lord, {begin, end}};
}

ExactZodiac::Part ExactZodiac::StarAt(Units units) const {
  const Units star = units / kUnitsOfStar;
  return {static_cast<std::size_t>(star) % kLords,
          {star * kUnitsOfStar, (star + 1) * kUnitsOfStar}};
}

ExactZodiac::Part ExactZodiac::SubAt(Units units) const {
  const Part star = StarAt(units);
  return PartAt(units, star.Place.Begin, star.Lord, kSubUnitsOfYear);
}

ExactZodiac::Part ExactZodiac::SubSubAt(Units units) const {
  const Part sub = SubAt(units);
  return PartAt(units, sub.Place.Begin, sub.Lord,
                kSubUnitsOfYear * years_[sub.Lord] / kYearsOfCycle);
}

Lords ExactZodiac::LordsOf(Units units, Depth depth) const {
  Lords lords;
  lords.Sign = signLords_.at(SignIndex(units));
  if (depth >= Depth::Star) {
    lords.Star = cycle_[StarAt(units).Lord];
  }
  if (depth >= Depth::Sub) {
    lords.Sub = cycle_[SubAt(units).Lord];
  }
  if (depth >= Depth::SubSub) {
    lords.SubSub = cycle_[SubSubAt(units).Lord];
  }
  return lords;
}

Span ExactZodiac::SpanOf(Units units, Depth depth) const {
  const Units sign = units / kUnitsOfSign * kUnitsOfSign;
  const Span inSign{sign, sign + kUnitsOfSign};
  switch (depth) {
    case Depth::Sign:
      return inSign;
    case Depth::Star:
      return Common(inSign, StarAt(units).Place);
    case Depth::Sub:
      return Common(inSign, SubAt(units).Place);
    case Depth::SubSub:
      return Common(inSign, SubSubAt(units).Place);
  }
  return inSign;
}

Span ExactZodiac::WholeSub(Units units) const { return SubAt(units).Place; }

std::vector<Span> ExactZodiac::Spans(Depth depth) const {
  std::vector<Span> spans;
  for (Units begin = 0; begin < kUnitsOfCircle; begin = spans.back().End) {
    spans.push_back(SpanOf(begin, depth));
  }
  return spans;
}

std::string ExactZodiac::PositionText(Units units) const {
  constexpr std::size_t kLetters = 3;
  const Units within = units % kUnitsOfSign;
  return core::PaddedWhole(within / kUnitsOfDegree, 2) + std::string(kDegreeSign) +
         MinutesAndSeconds(within) + " " + core::FirstCharacters(SignName(units), kLetters);
}

const std::string& ExactZodiac::SignName(Units units) const {
  return signNames_.at(SignIndex(units));
}

}  // namespace orvex::exact
