// When a planet or the Ascendant changes its lords.
#pragma once

#include <optional>
#include <vector>

#include "exact/exact_sky.h"
#include "exact/exact_zodiac.h"

namespace orvex::exact {

// A span of time in which all lords down to a depth stay the same.
struct Crossing {
  core::DateTime From{};    // UT, the first whole second at which it holds
  core::DateTime Until{};   // UT, the first whole second at which it no longer does
  Units Longitude = 0;      // at From
  bool Retrograde = false;  // at From; never for the Ascendant
  Lords Held;               // empty below the depth
};

struct CrossingSearch {
  Point Body = Point::Moon;
  core::DateTime From{};  // UT
  core::DateTime To{};    // UT
  Depth Down = Depth::Sub;
  Place Where;  // for the Ascendant alone
};

// The spans of a search without gap or overlap, the first beginning at its From, the last ending at
// its To. Every border counts at which a lord changes, passed in either direction, to the whole
// second. Nothing where To does not lie after From.
std::vector<Crossing> Crossings(const ExactSky& sky, const ExactZodiac& zodiac,
                                const CrossingSearch& search);

// The span of time that holds `search.From` as a whole: its From lies before that moment, its Until
// behind it. Each side is looked for within `reach`, then it stays at that distance. search.To is
// not read.
Crossing PresentSpan(const ExactSky& sky, const ExactZodiac& zodiac, const CrossingSearch& search,
                     std::chrono::seconds reach);

}  // namespace orvex::exact
