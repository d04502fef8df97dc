#include "exact/crossings.h"

#include <algorithm>
#include <cmath>

#include "core/exact_numbers.h"
#include "exact/path.h"
#include "exact/stations.h"

namespace orvex::exact {

namespace {

using std::chrono::days;
using std::chrono::minutes;
using std::chrono::seconds;

// Beyond this latitude the Ascendant may run through half the circle in minutes, jump or go back.
constexpr double kHighLatitude = 60;

// Walks the path of a point and writes down each change of its lords.
class Walk {
 public:
  Walk(const ExactSky& sky, const ExactZodiac& zodiac, const CrossingSearch& search)
      : sky_(sky), zodiac_(zodiac), search_(search), path_(sky, search) {}

  std::vector<Crossing> Run() {
    present_ = path_.At(search_.From);
    Note(present_);
    const core::DateTime last = search_.To - seconds(1);
    for (const core::DateTime stop : Stops(last)) {
      if (stop > present_.Moment) {
        WalkTo(path_.At(stop));
      }
    }
    rows_.back().Until = search_.To;
    return std::move(rows_);
  }

 private:
  bool IsSteep() const {
    return path_.IsAscendant() && std::fabs(search_.Where.Latitude) > kHighLatitude;
  }

  // So short that the point moves less than half a circle.
  seconds LongestStretch() const {
    if (path_.IsAscendant()) {
      return IsSteep() ? minutes(1) : minutes(30);
    }
    return search_.Body == Point::Moon ? days(5) : days(30);
  }

  // The ends of stretches in which the point moves in one direction.
  std::vector<core::DateTime> Stops(core::DateTime last) const {
    std::vector<core::DateTime> stops;
    if (!path_.IsAscendant()) {
      for (const Station& station : Stations(sky_, search_.Body, search_.From, last)) {
        stops.push_back(station.Moment);
      }
    }
    const seconds stretch = LongestStretch();
    for (core::DateTime stop = search_.From + stretch; stop < last; stop += stretch) {
      stops.push_back(stop);
    }
    stops.push_back(last);
    std::sort(stops.begin(), stops.end());
    return stops;
  }

  void WalkTo(const Sample& end) {
    if (IsSteep() && !IsRegular(end)) {
      while (present_.Moment < end.Moment) {
        Note(path_.At(present_.Moment + seconds(1)));
      }
      return;
    }
    const double way = Path::Ahead(present_.Longitude, end.Longitude);
    const bool forward = way > 0;
    if (present_.Rate == 0) {
      present_.Rate = way / static_cast<double>((end.Moment - present_.Moment).count());
    }
    for (;;) {
      const Units border = forward ? span_.End : span_.Begin;
      if (!Path::HasPassed(end.Longitude, border, forward)) {
        break;
      }
      Note(path_.Passage(present_, end, border, forward));
    }
    Note(end);
  }

  // Whether a stretch at a high latitude can be taken as one smooth movement.
  bool IsRegular(const Sample& end) const {
    constexpr double kFarthest = 30.0 * static_cast<double>(kUnitsOfDegree);
    if (end.Moment - present_.Moment <= seconds(2)) {
      return false;
    }
    const double way = Path::Ahead(present_.Longitude, end.Longitude);
    const double first =
        Path::Ahead(present_.Longitude, path_.At(present_.Moment + seconds(1)).Longitude);
    const double last = Path::Ahead(path_.At(end.Moment - seconds(1)).Longitude, end.Longitude);
    return std::fabs(way) < kFarthest && way * first > 0 && way * last > 0;
  }

  // Goes on to a sample; a row begins there where a lord has changed.
  void Note(const Sample& sample) {
    const bool ascendant = path_.IsAscendant();
    const double rate = sample.Rate != 0 || !ascendant ? sample.Rate : present_.Rate;
    present_ = {sample.Moment, sample.Longitude, rate};
    const Units units = OnCircle(core::Floor(sample.Longitude));
    if (!rows_.empty() && span_.Begin <= units && units < span_.End) {
      return;
    }
    span_ = zodiac_.SpanOf(units, search_.Down);
    Lords lords = zodiac_.LordsOf(units, search_.Down);
    if (!rows_.empty() && rows_.back().Held == lords) {
      return;
    }
    if (!rows_.empty()) {
      rows_.back().Until = sample.Moment;
    }
    rows_.push_back({sample.Moment, {}, units, !ascendant && sample.Rate < 0, std::move(lords)});
  }

  const ExactSky& sky_;
  const ExactZodiac& zodiac_;
  const CrossingSearch& search_;
  Path path_;
  Sample present_;
  Span span_;
  std::vector<Crossing> rows_;
};

}  // namespace

std::vector<Crossing> Crossings(const ExactSky& sky, const ExactZodiac& zodiac,
                                const CrossingSearch& search) {
  if (search.To <= search.From) {
    return {};
  }
  return Walk(sky, zodiac, search).Run();
}

Crossing PresentSpan(const ExactSky& sky, const ExactZodiac& zodiac, const CrossingSearch& search,
                     seconds reach) {
  // Short looks first: most spans end soon.
  constexpr int kGrowth = 4;
  Crossing present;
  for (seconds look = std::min(reach, seconds(minutes(15)));;
       look = std::min(reach, look * kGrowth)) {
    CrossingSearch around = search;
    around.From = search.From - look;
    around.To = search.From + look;
    const std::vector<Crossing> rows = Crossings(sky, zodiac, around);
    const auto holds = [&search](const Crossing& row) { return row.Until > search.From; };
    present = *std::find_if(rows.begin(), rows.end(), holds);
    const bool whole = present.From > around.From && present.Until < around.To;
    if (whole || look == reach) {
      return present;
    }
  }
}

}  // namespace orvex::exact
