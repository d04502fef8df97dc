#include "transit/passage_rule.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "transit/hour_table.h"

namespace orvex::transit {

namespace {

constexpr double kCircle = 360;
constexpr float kHalfCircle = 180;

// How far from the target a planet can be while its shown degree is on the other side of it: a
// minute cut off and half a hundredth rounded (0.022), and room for the arithmetic and for the
// seconds of arc by which the library's ephemerides differ where one takes over from another.
constexpr double kShownWithin = 0.05;

// clang-format off
constexpr std::array<SpeedBound, 7> kPlanetBounds = {{
    { 1.06, 0.01},  // Sun
    {15.80, 0.01},  // Moon
    { 2.35, 1.50},  // Mercury
    { 1.35, 0.70},  // Venus
    { 0.85, 0.45},  // Mars
    { 0.27, 0.15},  // Jupiter
    { 0.15, 0.10},  // Saturn
}};
constexpr SpeedBound kMeanNodeBound = {0.01, 0.06};
constexpr SpeedBound kTrueNodeBound = {0.50, 0.60};
// clang-format on

// The degree from one longitude forwards to another, from 0 up to 360.
double Ahead(double from, double to) {
  return std::fmod(std::fmod(to - from, kCircle) + kCircle, kCircle);
}

// Whole hours in which the planet cannot come near a point of the circle, whichever way it turns.
std::int64_t HoursUntil(double longitude, double point, const SpeedBound& bound) {
  const double days = std::min((Ahead(longitude, point) - kShownWithin) / bound.Forward,
                               (Ahead(point, longitude) - kShownWithin) / bound.Backward);
  return std::max<std::int64_t>(0, core::Floor(days * kHoursOfDay));
}

// A step of more than half the circle is a leap over 0 degrees, not a way over what lies between.
bool Passes(const std::string& degree, const std::string& next, float target) {
  const float here = core::ToSingle(degree);
  const float there = core::ToSingle(next);
  return here <= target && there >= target && there - here <= kHalfCircle;
}

core::DateTime LastHour() { return core::MakeDateTime({9999, 12, 31, 23}).value(); }

// A moment that UT puts outside the calendar has no position.
TransitPosition PositionOrNone(core::Session& session, const Search& search, core::DateTime hour) {
  TransitPosition position;
  core::Attempt([&] { position = PositionAt(session, search.Body, hour, search.ZoneHours); });
  return position;
}

// What a search does at the head of a date: it may end there.
std::optional<SearchEnd> EndBefore(const Search& search, core::DateTime date) {
  if (date > LastHour()) {
    return SearchEnd::CalendarOver;
  }
  if (search.Days && core::DaysBetween(search.From, date) >= *search.Days) {
    return SearchEnd::DaysOver;
  }
  if (search.Progress && !search.Progress(core::DateOnly(date))) {
    return SearchEnd::Canceled;
  }
  return std::nullopt;
}

}  // namespace

SpeedBound SpeedBoundOf(Planet planet, const std::string& nodeMode) {
  if (planet == Planet::Rahu || planet == Planet::Ketu) {
    return nodeMode == "M" ? kMeanNodeBound : kTrueNodeBound;
  }
  return kPlanetBounds.at(static_cast<std::size_t>(planet) - 1);
}

// A match means that the planet's longitude came within kShownWithin of the target during that
// hour. Until it can have done so, at its greatest speed and from where it stands, nothing can
// match.
SearchResult SearchPassage(core::Session& session, const Search& search) {
  const SpeedBound bound = SpeedBoundOf(search.Body, NodeMode(session.State));
  core::DateTime hour = core::DateOnly(search.From);
  std::optional<core::DateTime> date;
  std::optional<TransitPosition> here;
  while (true) {
    if (!date || core::DateOnly(hour) != *date) {
      if (const std::optional<SearchEnd> end = EndBefore(search, hour)) {
        return {*end, date.value_or(hour)};
      }
      date = core::DateOnly(hour);
    }
    if (!here) {
      here = PositionOrNone(session, search, hour);
    }
    if (!here->Known) {
      return {SearchEnd::EphemerisOver, hour};
    }
    const std::int64_t skipped = HoursUntil(here->Longitude, search.Target, bound);
    const core::DateTime nextHour = hour + std::chrono::hours(1);
    if (skipped > 0 || core::DateOnly(nextHour) != *date) {
      hour += std::chrono::hours(std::max<std::int64_t>(skipped, 1));
      here.reset();
      continue;
    }
    const TransitPosition next = PositionOrNone(session, search, nextHour);
    if (next.Known && Passes(here->Degree, next.Degree, search.Target)) {
      return {SearchEnd::Found, hour};
    }
    hour = nextHour;
    here = next;
  }
}

SearchResult SearchEveryHour(core::Session& session, const Search& search) {
  for (core::DateTime date = core::DateOnly(search.From);; date += std::chrono::days(1)) {
    if (const std::optional<SearchEnd> end = EndBefore(search, date)) {
      return {*end, date};
    }
    std::array<std::string, kHoursOfDay> degrees;
    for (int hour = 0; hour < kHoursOfDay; ++hour) {
      const core::DateTime local = date + std::chrono::hours(hour);
      const TransitPosition position = PositionOrNone(session, search, local);
      if (!position.Known) {
        return {SearchEnd::EphemerisOver, local};
      }
      degrees.at(static_cast<std::size_t>(hour)) = position.Degree;
    }
    for (std::size_t i = 0; i + 1 < degrees.size(); ++i) {
      if (Passes(degrees.at(i), degrees.at(i + 1), search.Target)) {
        return {SearchEnd::Found, date + std::chrono::hours(i)};
      }
    }
  }
}

}  // namespace orvex::transit
