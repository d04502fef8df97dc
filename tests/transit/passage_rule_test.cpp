#include "transit/passage_rule.h"

#include <random>

#include "core/exact_numbers.h"
#include "support/test_home.h"
#include "transit/find_transit_tool.h"

namespace orvex::transit {
namespace {

constexpr std::array<float, 4> kZones = {0.0F, 5.5F, -3.5F, 5.75F};

std::string Told(const Search& search, char nodeMode) {
  return PlanetName(search.Body) + " " + nodeMode + " to " + core::SingleText(search.Target) +
         " from " + core::StoredDateTimeText(search.From) + ", zone " +
         core::SingleText(search.ZoneHours);
}

void ExpectTheLiteralResult(core::Session& session, char nodeMode, const Search& search) {
  session.State.RahuKetuCalculation = nodeMode;
  const SearchResult literal = SearchEveryHour(session, search);
  const SearchResult fast = SearchPassage(session, search);
  ASSERT_EQ(fast.End, literal.End) << Told(search, nodeMode);
  if (literal.End == SearchEnd::Found) {
    EXPECT_EQ(fast.Hour, literal.Hour) << Told(search, nodeMode);
  }
}

class Searches : public testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();

  core::DateTime Day(std::mt19937& random) {
    return test::Moment("1600-01-01") + std::chrono::days(random() % 300000);
  }

  // The shown degree of a planet at some hour, so that a passage is near.
  float DegreeNear(const Search& search, std::mt19937& random) {
    const core::DateTime hour = search.From + std::chrono::hours(random() % (24 * 60));
    return core::ToSingle(PositionAt(*session_, search.Body, hour, search.ZoneHours).Degree);
  }
};

TEST_F(Searches, SkippingHoursFindsWhatLookingAtEachHourFinds) {
  std::mt19937 random(20261124);
  for (int number = 1; number <= kPlanetCount; ++number) {
    for (int round = 0; round < 12; ++round) {
      Search search{Planet{number}};
      search.From = Day(random);
      search.ZoneHours = kZones.at(random() % kZones.size());
      search.Days = 60;
      const char nodeMode = round % 2 == 0 ? 'M' : 'T';
      session_->State.RahuKetuCalculation = nodeMode;
      search.Target = DegreeNear(search, random);
      if (round % 3 == 1) {
        search.Target = core::ToSingle(core::TwoDecimals(search.Target + 0.01F));
      } else if (round % 6 == 5) {
        search.Target = round % 12 == 5 ? 0.0F : 360.0F;
      }
      ExpectTheLiteralResult(*session_, nodeMode, search);
    }
  }
}

// Days on which a planet stands still or goes back through 0 degrees, a little before each.
TEST_F(Searches, SkippingHoursMissesNothingAtStationsAndAtTheEndOfTheCircle) {
  struct Case {
    Planet Body;
    char NodeMode;
    const char* From;
    float Target;
  };
  const std::vector<Case> cases = {
      {Planet::Jupiter, 'M', "1987-10-20", 197.7F}, {Planet::Jupiter, 'M', "1987-10-20", 0.0F},
      {Planet::Jupiter, 'M', "1987-10-20", 360.0F}, {Planet::Rahu, 'M', "1930-10-25", 77.77F},
      {Planet::Ketu, 'M', "1930-10-25", 180.0F},    {Planet::Rahu, 'T', "1930-10-01", 77.77F},
      {Planet::Saturn, 'M', "2026-07-15", 350.73F}, {Planet::Mercury, 'M', "2026-10-15", 206.0F},
      {Planet::Moon, 'M', "2026-11-01", 0.0F},      {Planet::Sun, 'M', "2026-04-10", 0.0F}};
  for (const Case& each : cases) {
    for (const float zone : kZones) {
      ExpectTheLiteralResult(*session_, each.NodeMode,
                             {each.Body, each.Target, test::Moment(each.From), zone, 40, {}});
    }
  }
}

// A planet that goes back through 0 degrees leaps from one end of the circle to the other between
// two hours and passes nothing on the way; one that goes forward passes what lies between.
TEST_F(Searches, ALeapOverTheEndOfTheCircleIsNoPassage) {
  struct Case {
    Planet Body;
    const char* From;
    std::int64_t Days;
    float Target;
    SearchEnd End;
  };
  const std::vector<Case> cases = {{Planet::Jupiter, "1987-10-20", 60, 197.7F, SearchEnd::DaysOver},
                                   {Planet::Rahu, "1930-10-25", 40, 77.77F, SearchEnd::DaysOver},
                                   {Planet::Sun, "2026-04-10", 40, 0.5F, SearchEnd::Found},
                                   {Planet::Sun, "2026-04-10", 40, 359.5F, SearchEnd::Found},
                                   {Planet::Moon, "2026-11-01", 40, 179.5F, SearchEnd::Found}};
  for (const Case& each : cases) {
    const Search search{each.Body, each.Target, test::Moment(each.From), 0, each.Days, {}};
    EXPECT_EQ(SearchEveryHour(*session_, search).End, each.End) << Told(search, 'M');
    EXPECT_EQ(SearchPassage(*session_, search).End, each.End) << Told(search, 'M');
  }
}

// The bounds are what the skipping rests on: no hour may carry a planet further.
TEST_F(Searches, NoPlanetIsFasterThanItsBound) {
  std::mt19937 random(7);
  for (int number = 1; number <= kPlanetCount; ++number) {
    for (const char nodeMode : {'M', 'T'}) {
      session_->State.RahuKetuCalculation = nodeMode;
      const SpeedBound bound = SpeedBoundOf(Planet{number}, NodeMode(session_->State));
      for (int round = 0; round < 1500; ++round) {
        const core::DateTime hour = Day(random) + std::chrono::hours(random() % 24);
        const double before = PositionAt(*session_, Planet{number}, hour, 0).Longitude;
        const double after =
            PositionAt(*session_, Planet{number}, hour + std::chrono::hours(1), 0).Longitude;
        const double speed = std::remainder(after - before, 360) * 24;
        EXPECT_LT(speed, bound.Forward) << PlanetName(Planet{number});
        EXPECT_GT(speed, -bound.Backward) << PlanetName(Planet{number});
      }
    }
  }
}

TEST_F(Searches, ASearchOfYearsLooksAtFewDaysAndCanBeCanceled) {
  int looks = 0;
  Search search{Planet::Saturn, 40, test::Moment("2016-01-01")};
  search.Progress = [&looks](core::DateTime) { return ++looks > 0; };
  EXPECT_EQ(SearchPassage(*session_, search).End, SearchEnd::Found);
  EXPECT_LT(looks, 80);
  search.Progress = [](core::DateTime date) { return date < test::Moment("2017-01-01"); };
  const SearchResult canceled = SearchPassage(*session_, search);
  EXPECT_EQ(canceled.End, SearchEnd::Canceled);
  EXPECT_LT(canceled.Hour, test::Moment("2017-01-01"));
}

TEST_F(Searches, EverySearchComesToAnEnd) {
  EXPECT_EQ(SearchPassage(*session_, {Planet::Sun, 360, test::Moment("5300-01-01")}).End,
            SearchEnd::EphemerisOver);
  EXPECT_EQ(SearchPassage(*session_, {Planet::Sun, 100, test::Moment("9999-12-31")}).End,
            SearchEnd::EphemerisOver);
  EXPECT_EQ(SearchPassage(*session_, {Planet::Sun, 1, test::Moment("0100-01-01"), 12}).End,
            SearchEnd::EphemerisOver);
}

TEST_F(Searches, TargetsAreTakenOrRefusedByTheProgramsMessages) {
  struct Case {
    FindForm Form;
    float Degree;
    std::string Refused;
  };
  const auto form = [](TargetKind kind, const char* degree, const char* star, int pada,
                       const char* zodiac) {
    return FindForm{Planet::Sun, {}, kind, degree, star, pada, zodiac};
  };
  const std::vector<Case> cases = {
      {form(TargetKind::Degree, "197.7", "", 0, ""), 197.7F, ""},
      {form(TargetKind::Degree, " 12.345 ", "", 0, ""), 12.35F, ""},
      {form(TargetKind::Degree, "360", "", 0, ""), 360, ""},
      {form(TargetKind::Degree, "abc", "", 0, ""), 0, "Numeric value required."},
      {form(TargetKind::Degree, "", "", 0, ""), 0, "Numeric value required."},
      {form(TargetKind::Degree, "-5", "", 0, ""), 0, "Value should be between 0 to 360 degrees."},
      {form(TargetKind::Degree, "360.001", "", 0, ""), 0,
       "Value should be between 0 to 360 degrees."},
      {form(TargetKind::Nakshatra, "", "Bharani", 1, ""), 13.34F, ""},
      {form(TargetKind::Nakshatra, "", "Bharani", 5, ""), 0, "There is no such nakshatra pada."},
      {form(TargetKind::Rashi, "", "", 0, "Leo"), 120, ""},
      {form(TargetKind::Rashi, "", "", 0, "Lion"), 0, "There is no such rashi."}};
  for (const Case& each : cases) {
    const TargetResult target = TargetOf(session_->Reference, each.Form);
    EXPECT_EQ(target.Refused ? target.Refused->Text : "", each.Refused);
    EXPECT_EQ(target.Degree, each.Degree);
  }
}

TEST_F(Searches, AChainGoesOnFromTheDayAfterAndTellsItsEnd) {
  FindForm form{Planet::Sun, test::Moment("2020-01-01"), TargetKind::Degree, "10.5"};
  const auto results = FindTransits(*session_, form, 10.5F, 3, 800, {});
  ASSERT_EQ(results.size(), 3U);
  EXPECT_EQ(results[0].End, SearchEnd::Found);
  EXPECT_EQ(results[1].End, SearchEnd::Found);
  EXPECT_EQ(core::PartsOf(results[1].Hour).Year, 2021);
  EXPECT_EQ(results[2].End, SearchEnd::DaysOver);
  const auto mark = SyncToGrid(results[0].Tag);
  ASSERT_TRUE(mark);
  EXPECT_EQ(mark->Month, 4);
  EXPECT_EQ(mark->Year, 2020);
  EXPECT_EQ(mark->PlanetName, "Sun");
  EXPECT_EQ(mark->DateText, core::LongDateText(results[0].Hour, false));
  EXPECT_FALSE(SyncToGrid("April*2020"));
}

TEST_F(Searches, ACanceledSearchGoesBackToItsPrompt) {
  const FindForm form{Planet::Sun, test::Moment("2020-01-01"), TargetKind::Degree, "10.5"};
  const FindResult result =
      FindTransit(*session_, form, 10.5F, {}, [](core::DateTime) { return false; });
  EXPECT_EQ(result.Result, kFindPrompt);
  EXPECT_EQ(result.Status, "Process was canceled");
  EXPECT_TRUE(result.Tag.empty());
  EXPECT_EQ(result.Hours.Rows.size(), 24U);
}

}  // namespace
}  // namespace orvex::transit
