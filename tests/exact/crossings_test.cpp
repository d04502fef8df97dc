#include "exact/crossings.h"

#include <gtest/gtest.h>

#include "exact/crossings_table.h"
#include "exact/stations.h"
#include "support/test_home.h"

namespace orvex::exact {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

class CrossingsTest : public ::testing::Test {
 protected:
  ExactSky Sky(char nodeMode = 'M', Reading reading = Reading::Kp) {
    return ExactSky(session_->Ephemeris, reading, nodeMode);
  }

  static Units UnitsAt(const ExactSky& sky, const CrossingSearch& search, core::DateTime ut) {
    return UnitsOf(search.Body == Point::Ascendant ? sky.AscendantAt(ut, search.Where)
                                                   : sky.PositionOf(search.Body, ut).Longitude);
  }

  // Every second of the search, one after the other.
  std::vector<Crossing> BruteForce(const ExactSky& sky, const CrossingSearch& search) const {
    std::vector<Crossing> rows;
    for (core::DateTime at = search.From; at < search.To; at += seconds(1)) {
      const Units units = UnitsAt(sky, search, at);
      const Lords lords = zodiac_.LordsOf(units, search.Down);
      if (rows.empty() || rows.back().Held != lords) {
        if (!rows.empty()) {
          rows.back().Until = at;
        }
        rows.push_back({at, {}, units, false, lords});
      }
    }
    rows.back().Until = search.To;
    return rows;
  }

  // Without gap or overlap, each row another, and each border true to the second.
  void ExpectTrueRows(const ExactSky& sky, const CrossingSearch& search,
                      const std::vector<Crossing>& rows) const {
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows.front().From, search.From);
    EXPECT_EQ(rows.back().Until, search.To);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_LT(rows[i].From, rows[i].Until);
      EXPECT_EQ(zodiac_.LordsOf(UnitsAt(sky, search, rows[i].From), search.Down), rows[i].Held);
      EXPECT_EQ(zodiac_.LordsOf(UnitsAt(sky, search, rows[i].Until - seconds(1)), search.Down),
                rows[i].Held);
      EXPECT_EQ(rows[i].Longitude, UnitsAt(sky, search, rows[i].From));
      if (i > 0) {
        EXPECT_EQ(rows[i].From, rows[i - 1].Until);
        EXPECT_NE(rows[i].Held, rows[i - 1].Held);
      }
    }
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  ExactZodiac zodiac_{session_->Reference};
};

struct Sampled {
  Point Body;
  const char* From;
  seconds Length;
  Depth Down;
  Place Where;
  char NodeMode;
};

TEST_F(CrossingsTest, AgreeWithASecondBySecondWalk) {
  const Sampled samples[] = {
      {Point::Moon, "2026-11-24 10:00:00", hours(12), Depth::SubSub, {}, 'M'},
      {Point::Moon, "0100-03-01 00:00:00", hours(3), Depth::SubSub, {}, 'M'},
      {Point::Moon, "2499-03-01 00:00:00", hours(3), Depth::SubSub, {}, 'M'},
      // Mercury's station of 24 October 2026, an hour and a half on either side of it.
      {Point::Mercury, "2026-10-24 05:30:00", hours(3), Depth::SubSub, {}, 'M'},
      {Point::Ascendant, "2026-11-24 10:00:00", hours(2), Depth::SubSub, {19.07, 72.88}, 'M'},
      {Point::Ascendant, "2026-11-24 10:00:00", hours(4), Depth::Sub, {-59.9, 10}, 'M'},
      {Point::Ascendant, "2026-06-24 01:00:00", hours(12), Depth::Sub, {66.4, 25}, 'M'},
      {Point::Ascendant, "2026-11-24 10:00:00", hours(24), Depth::Sub, {69.6, 18.9}, 'M'},
      {Point::Ascendant, "2026-11-24 10:00:00", hours(24), Depth::Star, {-89.5, 0}, 'M'}};
  for (const Sampled& sample : samples) {
    SCOPED_TRACE(PointName(sample.Body) + " " + sample.From);
    const ExactSky sky = Sky(sample.NodeMode);
    const core::DateTime from = test::Moment(sample.From);
    const CrossingSearch search{sample.Body, from, from + sample.Length, sample.Down, sample.Where};
    const std::vector<Crossing> expected = BruteForce(sky, search);
    const std::vector<Crossing> found = Crossings(sky, zodiac_, search);
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(found[i].From, expected[i].From) << i;
      EXPECT_EQ(found[i].Until, expected[i].Until) << i;
      EXPECT_EQ(found[i].Held, expected[i].Held) << i;
      EXPECT_EQ(found[i].Longitude, expected[i].Longitude) << i;
    }
  }
}

TEST_F(CrossingsTest, AYearOfEveryPlanetHasNeitherGapNorOverlap) {
  for (const char nodeMode : {'M', 'T'}) {
    const ExactSky sky = Sky(nodeMode, nodeMode == 'T' ? Reading::KpNew : Reading::Kp);
    for (const Point planet : kPlanets) {
      SCOPED_TRACE(PointName(planet));
      const core::DateTime from = test::Moment("2026-01-01");
      const CrossingSearch search{planet, from, from + days(365), Depth::Sub, {}};
      ExpectTrueRows(sky, search, Crossings(sky, zodiac_, search));
    }
  }
}

// A search in pieces finds what the whole finds: no border hangs on where a search begins.
TEST_F(CrossingsTest, PiecesOfASearchGiveTheWhole) {
  const ExactSky sky = Sky('T');
  for (const Point planet : {Point::Mercury, Point::Rahu, Point::Saturn}) {
    const core::DateTime from = test::Moment("2026-01-01");
    CrossingSearch search{planet, from, from + days(300), Depth::SubSub, {}};
    const std::vector<Crossing> whole = Crossings(sky, zodiac_, search);
    std::vector<Crossing> joined;
    for (core::DateTime at = from; at < search.To; at += days(7)) {
      CrossingSearch piece = search;
      piece.From = at;
      piece.To = std::min(at + seconds(days(7)), search.To);
      for (const Crossing& row : Crossings(sky, zodiac_, piece)) {
        if (!joined.empty() && joined.back().Held == row.Held) {
          joined.back().Until = row.Until;
        } else {
          joined.push_back(row);
        }
      }
    }
    ASSERT_EQ(joined.size(), whole.size()) << PointName(planet);
    for (std::size_t i = 0; i < whole.size(); ++i) {
      EXPECT_EQ(joined[i].From, whole[i].From) << PointName(planet) << " " << i;
    }
  }
}

// The Astronomical Almanac's stations of 2026, to the day.
TEST_F(CrossingsTest, StationsStandOnTheirDays) {
  const ExactSky sky = Sky();
  const std::vector<Station> mercury =
      Stations(sky, Point::Mercury, test::Moment("2026-01-01"), test::Moment("2027-01-01"));
  const std::pair<const char*, bool> expected[] = {{"2026-02-26", true}, {"2026-03-20", false},
                                                   {"2026-06-29", true}, {"2026-07-23", false},
                                                   {"2026-10-24", true}, {"2026-11-13", false}};
  ASSERT_EQ(mercury.size(), std::size(expected));
  for (std::size_t i = 0; i < mercury.size(); ++i) {
    EXPECT_EQ(core::DateOnly(mercury[i].Moment), test::Moment(expected[i].first));
    EXPECT_EQ(mercury[i].Retrograde, expected[i].second);
    const auto speed = [&](core::DateTime at) { return sky.PositionOf(Point::Mercury, at).Speed; };
    EXPECT_EQ(speed(mercury[i].Moment) < 0, mercury[i].Retrograde);
    EXPECT_NE(speed(mercury[i].Moment - seconds(1)) < 0, mercury[i].Retrograde);
  }
  for (const Point never : {Point::Sun, Point::Moon, Point::Rahu}) {
    EXPECT_TRUE(
        Stations(sky, never, test::Moment("2026-01-01"), test::Moment("2027-01-01")).empty());
  }
}

// The true node runs forward for stretches of hours: in 1905 for one of less than an hour.
TEST_F(CrossingsTest, TheShortDirectStretchesOfTheTrueNodeAreFound) {
  const ExactSky sky = Sky('T');
  for (const char* from : {"1900-06-01", "1905-04-01", "2026-01-01"}) {
    const core::DateTime begin = test::Moment(from);
    std::vector<core::DateTime> walked;
    bool retrograde = sky.PositionOf(Point::Rahu, begin).Speed < 0;
    for (core::DateTime at = begin + minutes(10); at <= begin + days(90); at += minutes(10)) {
      const bool now = sky.PositionOf(Point::Rahu, at).Speed < 0;
      if (now != retrograde) {
        walked.push_back(at);
        retrograde = now;
      }
    }
    const std::vector<Station> found = Stations(sky, Point::Rahu, begin, begin + days(90));
    ASSERT_EQ(found.size(), walked.size()) << from;
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_LE(found[i].Moment, walked[i]);
      EXPECT_GT(found[i].Moment, walked[i] - minutes(10));
    }
  }
}

// Two signs of one lord follow each other: by sign and by star no lord changes at 300 degrees.
TEST_F(CrossingsTest, ARowLastsWhileTheLordsStayTheSame) {
  const ExactSky sky = Sky();
  const core::DateTime from = test::Moment("2027-01-20");
  CrossingSearch search{Point::Sun, from, from + days(60), Depth::Sign, {}};
  const std::vector<Crossing> signs = Crossings(sky, zodiac_, search);
  ASSERT_EQ(signs.size(), 2U);
  EXPECT_EQ(signs[0].Held.Sign, "Saturn");
  EXPECT_EQ(signs[1].Held.Sign, "Jupiter");
  EXPECT_EQ(signs[0].Held.Star, "");
  search.Down = Depth::Star;
  ExpectTrueRows(sky, search, Crossings(sky, zodiac_, search));
}

TEST_F(CrossingsTest, ThePresentSpanReachesToBothSides) {
  const ExactSky sky = Sky();
  const core::DateTime now = test::Moment("2026-11-24 05:00:00");
  for (const Point body : {Point::Moon, Point::Ascendant}) {
    const CrossingSearch search{body, now, {}, Depth::Sub, {19.07, 72.88}};
    const Crossing present = PresentSpan(sky, zodiac_, search, days(2));
    EXPECT_LE(present.From, now);
    EXPECT_GT(present.Until, now);
    const auto lordsAt = [&](core::DateTime at) {
      return zodiac_.LordsOf(UnitsAt(sky, search, at), Depth::Sub);
    };
    EXPECT_EQ(lordsAt(present.From), lordsAt(now));
    EXPECT_NE(lordsAt(present.From - seconds(1)), lordsAt(now));
    EXPECT_EQ(lordsAt(present.Until - seconds(1)), lordsAt(now));
    EXPECT_NE(lordsAt(present.Until), lordsAt(now));
  }
}

// Seen from any second of a span, forward and back, the span is the one that a walk finds.
TEST_F(CrossingsTest, BackAndForthASpanIsTheSame) {
  const ExactSky sky = Sky('T');
  const core::DateTime from = test::Moment("2026-10-20");
  // The Moon's subs, Mercury around its station, the true node with its direct stretches, and the
  // Ascendant where it turns back.
  const std::pair<CrossingSearch, std::chrono::seconds> searches[] = {
      {{Point::Moon, from, from + days(2), Depth::SubSub, {}}, days(2)},
      {{Point::Mercury, from, from + days(9), Depth::SubSub, {}}, days(40)},
      {{Point::Rahu, from, from + days(40), Depth::SubSub, {}}, days(60)},
      {{Point::Ascendant, from, from + hours(6), Depth::Sub, {69.6, 18.9}}, days(1)}};
  for (const auto& [search, reach] : searches) {
    const std::vector<Crossing> rows = Crossings(sky, zodiac_, search);
    ASSERT_GT(rows.size(), 3U) << PointName(search.Body);
    for (std::size_t i = 1; i + 1 < rows.size(); ++i) {
      const Crossing& row = rows[i];
      for (const core::DateTime seen :
           {row.From, row.From + (row.Until - row.From) / 2, row.Until - seconds(1)}) {
        CrossingSearch own = search;
        own.From = seen;
        const Crossing span = PresentSpan(sky, zodiac_, own, reach);
        EXPECT_EQ(span.From, row.From) << PointName(search.Body) << " " << i;
        EXPECT_EQ(span.Until, row.Until) << PointName(search.Body) << " " << i;
        EXPECT_EQ(span.Held, row.Held) << PointName(search.Body) << " " << i;
      }
    }
  }
}

TEST_F(CrossingsTest, ChangesAreToldByTheHighestLordThatChanges) {
  const auto text = [this](Units before, Units after, Depth depth) {
    return ChangeText(zodiac_, "Moon", before, after, depth);
  };
  EXPECT_EQ(text(kUnitsOfSign * 10 - 1, kUnitsOfSign * 10, Depth::Sub), "Moon enters Aquarius");
  EXPECT_EQ(text(kUnitsOfStar - 1, kUnitsOfStar, Depth::Sub), "Moon enters the star of Venus");
  const Units sub = 7 * 14'400;
  EXPECT_EQ(text(sub - 1, sub, Depth::Sub), "Moon enters the sub of Venus");
  EXPECT_EQ(text(sub, sub - 1, Depth::SubSub), "Moon enters the sub of Ketu");
  EXPECT_EQ(text(7 * 7 * 120 - 1, 7 * 7 * 120, Depth::SubSub), "Moon enters the sub-sub of Venus");
}

TEST_F(CrossingsTest, AnEmptySearchGivesNothing) {
  const core::DateTime now = test::Moment("2026-11-24");
  EXPECT_TRUE(Crossings(Sky(), zodiac_, {Point::Moon, now, now, Depth::Sub, {}}).empty());
}

}  // namespace
}  // namespace orvex::exact
