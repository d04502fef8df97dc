// The zodiac in whole units: every border of sign, star, sub and sub-sub is a whole number of them,
// so the lords of a longitude are found without rounding.
//
// One unit is 1/36 of an arc second. A sub of a lord of y Vimshottari years has 14,400 y units, a
// sub-sub of a lord of z years within it 120 y z. Spans are half open: from their begin up to and
// without their end.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/reference_data.h"

namespace orvex::exact {

using Units = std::int64_t;

inline constexpr Units kUnitsOfSecond = 36;
inline constexpr Units kUnitsOfMinute = 60 * kUnitsOfSecond;
inline constexpr Units kUnitsOfDegree = 60 * kUnitsOfMinute;
inline constexpr Units kUnitsOfSign = 30 * kUnitsOfDegree;
inline constexpr Units kUnitsOfStar = 1'728'000;  // 13 degrees 20 minutes
inline constexpr Units kUnitsOfCircle = 360 * kUnitsOfDegree;

// How far down the lords count.
enum class Depth { Sign, Star, Sub, SubSub };

// The names of the four lords of a longitude; empty below a depth that was asked for.
struct Lords {
  std::string Sign;
  std::string Star;
  std::string Sub;
  std::string SubSub;

  bool operator==(const Lords&) const = default;
};

// A part of the circle in which sign, star and the parts down to a depth stay the same.
struct Span {
  Units Begin = 0;
  Units End = 0;  // up to kUnitsOfCircle
};

// The unit in which a longitude of 0 to 360 degrees lies, 0 to below kUnitsOfCircle. Any other
// longitude is brought onto the circle first.
Units UnitsOf(double longitude);

// Any count of units brought onto the circle.
Units OnCircle(Units units);

// The longitude of a unit's begin, degrees: UnitsOf leads back to the unit.
double DegreesOf(Units units);

// An arc of 0 or more units, cut to the second: 0°12'40".
std::string ArcText(Units arc);

class ExactZodiac {
 public:
  // Takes the signs with their lords and the cycle of the periods from the reference tables.
  // std::out_of_range where those are not twelve and nine.
  explicit ExactZodiac(const core::ReferenceData& reference);

  // The lords of a unit on the circle down to a depth.
  Lords LordsOf(Units units, Depth depth = Depth::SubSub) const;

  // The span of that depth that holds a unit on the circle. Sign borders cut stars and subs.
  Span SpanOf(Units units, Depth depth) const;

  // The whole sub that holds a unit, also across a sign border.
  Span WholeSub(Units units) const;

  // All spans of a depth in their order: 12, 36, 249 and 2,193.
  std::vector<Span> Spans(Depth depth) const;

  // Degrees, minutes and seconds within the sign, cut to the second, and three letters of the sign:
  // 14°40'45" Lib.
  std::string PositionText(Units units) const;

  // The name of the sign that holds a unit on the circle.
  const std::string& SignName(Units units) const;

 private:
  // A part of a star or of a sub: the place of its lord in the cycle, and where it lies.
  struct Part {
    std::size_t Lord = 0;
    Span Place;
  };

  // The part of a span of nine parts, cut in the order of the cycle from a lord on, that holds a
  // unit. `yearUnits` is how many units a year counts.
  Part PartAt(Units units, Units begin, std::size_t firstLord, Units yearUnits) const;
  Part StarAt(Units units) const;
  Part SubAt(Units units) const;
  Part SubSubAt(Units units) const;

  std::array<std::string, 12> signNames_;
  std::array<std::string, 12> signLords_;
  std::array<std::string, 9> cycle_;
  std::array<Units, 9> years_{};
};

}  // namespace orvex::exact
