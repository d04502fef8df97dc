#include "exact/stations.h"

#include <array>
#include <cmath>

namespace orvex::exact {

namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::seconds;

struct SpeedAt {
  core::DateTime Moment{};
  double Speed = 0;

  bool Retrograde() const { return Speed < 0; }
};

class StationSearch {
 public:
  StationSearch(const ExactSky& sky, Point planet) : sky_(sky), planet_(planet) {}

  SpeedAt At(core::DateTime moment) const {
    return {moment, sky_.PositionOf(planet_, moment).Speed};
  }

  // The first second of the new direction between two moments of different direction.
  SpeedAt Turn(SpeedAt before, SpeedAt after) const {
    while (after.Moment - before.Moment > seconds(1)) {
      const SpeedAt middle = At(before.Moment + (after.Moment - before.Moment) / 2);
      (middle.Retrograde() == before.Retrograde() ? before : after) = middle;
    }
    return after;
  }

  // A moment of the other direction between two of one direction, around which the speed comes
  // near to zero; where there is none, the moment nearest to it.
  SpeedAt Nearest(core::DateTime low, core::DateTime high, bool retrograde) const {
    constexpr int kThirds = 3;
    SpeedAt nearest = At(low + (high - low) / 2);
    while (high - low > seconds(kThirds) && nearest.Retrograde() == retrograde) {
      const auto third = (high - low) / kThirds;
      const SpeedAt left = At(low + third);
      const SpeedAt right = At(high - third);
      // Speeds towards the other direction count as nearer, whatever their size.
      const bool leftIsNearer = retrograde ? left.Speed > right.Speed : left.Speed < right.Speed;
      nearest = leftIsNearer ? left : right;
      (leftIsNearer ? high : low) = leftIsNearer ? right.Moment : left.Moment;
    }
    return nearest;
  }

  // Adds the stations between the first two of three samples, and those around the second where the
  // speed comes near to zero and goes back.
  void AddBetween(const std::array<SpeedAt, 3>& samples, std::vector<SpeedAt>& found) const {
    const auto& [before, middle, after] = samples;
    if (before.Retrograde() != middle.Retrograde()) {
      found.push_back(Turn(before, middle));
    } else if (middle.Retrograde() == after.Retrograde() &&
               std::fabs(middle.Speed) <= std::fabs(before.Speed) &&
               std::fabs(middle.Speed) <= std::fabs(after.Speed)) {
      AddTouch(before, after, found);
    }
  }

 private:
  // A stretch of the other direction that begins and ends between two samples.
  void AddTouch(SpeedAt before, SpeedAt after, std::vector<SpeedAt>& found) const {
    const SpeedAt nearest = Nearest(before.Moment, after.Moment, before.Retrograde());
    if (nearest.Retrograde() != before.Retrograde()) {
      found.push_back(Turn(before, nearest));
      found.push_back(Turn(nearest, after));
    }
  }

  const ExactSky& sky_;
  Point planet_;
};

bool EverTurns(const ExactSky& sky, Point planet) {
  const bool node = planet == Point::Rahu || planet == Point::Ketu;
  return planet != Point::Sun && planet != Point::Moon && (!node || sky.HasTrueNode());
}

// Far below the shortest retrograde stretch; the true node's speed swings within days.
seconds StepOf(Point planet) {
  return planet == Point::Rahu || planet == Point::Ketu ? seconds(hours(12)) : seconds(days(3));
}

}  // namespace

std::vector<Station> Stations(const ExactSky& sky, Point planet, core::DateTime from,
                              core::DateTime to) {
  std::vector<Station> stations;
  if (!EverTurns(sky, planet) || to <= from) {
    return stations;
  }
  const StationSearch search(sky, planet);
  const seconds step = StepOf(planet);
  std::array<SpeedAt, 3> samples = {search.At(from - step), search.At(from),
                                    search.At(from + step)};
  std::vector<SpeedAt> found;
  while (samples[0].Moment < to) {
    search.AddBetween(samples, found);
    samples = {samples[1], samples[2], search.At(samples[2].Moment + step)};
  }
  for (const SpeedAt& turn : found) {
    if (turn.Moment > from && turn.Moment <= to) {
      stations.push_back({turn.Moment, turn.Retrograde()});
    }
  }
  return stations;
}

}  // namespace orvex::exact
