#include "exact/path.h"

#include <algorithm>
#include <cmath>

#include "core/exact_numbers.h"

namespace orvex::exact {

namespace {

using std::chrono::seconds;

constexpr double kSecondsOfDay = 86400;
constexpr double kUnits = static_cast<double>(kUnitsOfDegree);
constexpr double kCircleUnits = static_cast<double>(kUnitsOfCircle);

// The second at which the border would be reached at the sample's rate, within the two bounds;
// halfway between them where that leads out of them.
core::DateTime NextGuess(const Sample& sample, double rate, Units border, core::DateTime low,
                         core::DateTime high) {
  const double ahead = Path::Ahead(sample.Longitude, static_cast<double>(border));
  const double wait = rate == 0 ? kSecondsOfDay * kSecondsOfDay : std::ceil(ahead / rate);
  const double lowest = static_cast<double>((low - sample.Moment).count());
  const double highest = static_cast<double>((high - sample.Moment).count());
  if (wait < lowest || wait > highest) {
    return low + (high - low) / 2;
  }
  const core::DateTime guess = sample.Moment + seconds(core::Truncate(wait));
  return std::clamp(guess, low + seconds(1), high - seconds(1));
}

}  // namespace

Sample Path::At(core::DateTime moment) const {
  if (IsAscendant()) {
    return {moment, sky_.AscendantAt(moment, search_.Where) * kUnits, 0};
  }
  const astro::Position position = sky_.PositionOf(search_.Body, moment);
  return {moment, position.Longitude * kUnits, position.Speed * kUnits / kSecondsOfDay};
}

double Path::Ahead(double from, double to) {
  const double ahead = std::fmod(to - from, kCircleUnits);
  if (ahead >= kCircleUnits / 2) {
    return ahead - kCircleUnits;
  }
  return ahead < -kCircleUnits / 2 ? ahead + kCircleUnits : ahead;
}

bool Path::HasPassed(double longitude, Units border, bool forward) {
  const double beyond = Ahead(static_cast<double>(border), longitude);
  return forward ? beyond >= 0 : beyond < 0;
}

Sample Path::Passage(Sample before, Sample after, Units border, bool forward) const {
  constexpr int kQuickTries = 8;
  Sample last = before;
  double rate = before.Rate;
  for (int tries = 0; after.Moment - before.Moment > seconds(1); ++tries) {
    const core::DateTime guess = tries < kQuickTries
                                     ? NextGuess(last, rate, border, before.Moment, after.Moment)
                                     : before.Moment + (after.Moment - before.Moment) / 2;
    const Sample tried = At(guess);
    rate = IsAscendant() ? Ahead(last.Longitude, tried.Longitude) /
                               static_cast<double>((tried.Moment - last.Moment).count())
                         : tried.Rate;
    last = tried;
    (HasPassed(tried.Longitude, border, forward) ? after : before) = tried;
  }
  if (IsAscendant()) {
    after.Rate = Ahead(before.Longitude, after.Longitude);
  }
  return after;
}

}  // namespace orvex::exact
