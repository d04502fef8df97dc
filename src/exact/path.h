// The way of one point through the zodiac, second by second.
#pragma once

#include "exact/crossings.h"

namespace orvex::exact {

// Where a point stands at a second.
struct Sample {
  core::DateTime Moment{};  // UT
  double Longitude = 0;     // in units, with its fraction
  double Rate = 0;          // units a second; 0 where it is not known
};

class Path {
 public:
  Path(const ExactSky& sky, const CrossingSearch& search) : sky_(sky), search_(search) {}

  Sample At(core::DateTime moment) const;

  // By how many units `to` lies ahead of `from`, the short way round the circle.
  static double Ahead(double from, double to);

  // The first second after `before` at which a border is passed; known to be passed at `after`. In
  // between the point moves in one direction, `forward` or back, by less than half a circle.
  // A border that is reached exactly is passed forward, and not yet passed backward.
  Sample Passage(Sample before, Sample after, Units border, bool forward) const;

  // Whether a longitude has passed a border in that direction.
  static bool HasPassed(double longitude, Units border, bool forward);

  bool IsAscendant() const { return search_.Body == Point::Ascendant; }

 private:
  const ExactSky& sky_;
  const CrossingSearch& search_;
};

}  // namespace orvex::exact
