// The rule by which a planet passes a longitude, and the search for the hour by it.
//
// What is searched for are two successive hours of one local date whose shown degrees (to the whole
// minute, two decimals) are at most the target and at least the target. The last hour of a date and
// the first of the next are never compared. A planet whose shown degree rests on the target passes
// it. Two degrees more than 180 apart, as where a planet moves back through 0, are no passage.
#pragma once

#include <functional>
#include <optional>

#include "transit/transit_position.h"

namespace orvex::transit {

enum class SearchEnd {
  Found,
  Canceled,
  DaysOver,       // the days allowed are searched
  EphemerisOver,  // the ephemeris has no positions any more
  CalendarOver    // the last day of the year 9999 is searched
};

// `Hour` is the local moment of the first of the two hours, where the end is Found; else where the
// search stood.
struct SearchResult {
  SearchEnd End = SearchEnd::CalendarOver;
  core::DateTime Hour{};
};

struct Search {
  Planet Body = Planet::Sun;
  float Target = 0;                  // degrees, 0 to 360, two decimals
  core::DateTime From{};             // the first local date
  float ZoneHours = 0;               // hours east of Greenwich
  std::optional<std::int64_t> Days;  // at most so many dates
  // Hears of each date that is looked at; false cancels.
  std::function<bool(core::DateTime)> Progress;
};

// The greatest speeds of a planet, degrees a day, forwards and backwards (both positive).
struct SpeedBound {
  double Forward = 0;
  double Backward = 0;
};

// Bounds that hold for the positions of the transit tools at any moment that the ephemeris knows.
SpeedBound SpeedBoundOf(Planet planet, const std::string& nodeMode);

// The first passage. Hours that provably cannot match are skipped.
SearchResult SearchPassage(core::Session& session, const Search& search);

// The same, every hour of every date looked at.
SearchResult SearchEveryHour(core::Session& session, const Search& search);

}  // namespace orvex::transit
