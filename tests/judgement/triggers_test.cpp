#include "judgement/triggers.h"

#include <gtest/gtest.h>

#include "core/exact_numbers.h"
#include "exact/crossings_table.h"
#include "judgement/judgement_calendar.h"
#include "judgement/matter_periods.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

using exact::Point;

class Triggers : public testing::Test {
 protected:
  TriggerSearch Search(std::set<std::string> lords) const {
    TriggerSearch search;
    search.Bodies = {Point::Moon, Point::Sun};
    search.Lords = std::move(lords);
    search.From = test::Moment("2026-11-24 06:00");
    search.To = test::Moment("2026-12-24 06:00");
    search.Offset = std::chrono::hours(4);
    return search;
  }

  core::Table Crossings(Point body) {
    const exact::ExactSky sky(session_->Ephemeris, exact::Reading::Kp, 'M');
    const TriggerSearch search = Search({});
    return exact::CrossingsTable(
        zodiac_,
        exact::Crossings(sky, zodiac_,
                         {body, search.From, search.To, exact::Depth::Sub, search.Where}),
        search.Offset);
  }

  static std::string TextOf(const core::Table& table, std::size_t row, TriggerColumn column) {
    return table.At(row, column).Text;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  exact::ExactZodiac zodiac_{session_->Reference};
};

TEST_F(Triggers, AreTheSpansWhoseThreeLordsAllBelongToTheSet) {
  const std::set<std::string> lords = {"Saturn", "Venus", "Mercury", "Moon"};
  std::set<std::string> wanted;
  for (const Point body : {Point::Moon, Point::Sun}) {
    const core::Table crossings = Crossings(body);
    for (std::size_t row = 0; row < crossings.Rows.size(); ++row) {
      const auto text = [&](exact::CrossingColumn column) {
        return crossings.At(row, column).Text;
      };
      if (lords.contains(text(exact::CrossingColumn::SignLord)) &&
          lords.contains(text(exact::CrossingColumn::StarLord)) &&
          lords.contains(text(exact::CrossingColumn::SubLord))) {
        wanted.insert(exact::PointName(body) + text(exact::CrossingColumn::From) +
                      text(exact::CrossingColumn::Until) + text(exact::CrossingColumn::SubLord));
      }
    }
  }
  ASSERT_GT(wanted.size(), 10U);
  std::set<std::string> found;
  const core::Table triggers = BuildTriggers(*session_, Search(lords));
  for (std::size_t row = 0; row < triggers.Rows.size(); ++row) {
    found.insert(TextOf(triggers, row, TriggerColumn::Body) +
                 TextOf(triggers, row, TriggerColumn::From) +
                 TextOf(triggers, row, TriggerColumn::Until) +
                 TextOf(triggers, row, TriggerColumn::SubLord));
    EXPECT_EQ(TextOf(triggers, row, TriggerColumn::House), "");
  }
  EXPECT_EQ(found, wanted);
  EXPECT_EQ(triggers.Rows.size(), wanted.size());
  EXPECT_TRUE(BuildTriggers(*session_, Search({})).Rows.empty());
}

// Pieces of a way are put together again: what a piece cuts in two is one span.
TEST_F(Triggers, AreTheSameWhetherTheirWayIsTakenAtOnceOrPieceByPiece) {
  const struct {
    Point Body;
    int Days;
  } ways[] = {{Point::Mercury, 400}, {Point::Saturn, 900}, {Point::Ascendant, 3}, {Point::Sun, 0}};
  const std::set<std::string> all = {"Sun",   "Moon",   "Mars", "Mercury", "Jupiter",
                                     "Venus", "Saturn", "Rahu", "Ketu"};
  for (const auto& way : ways) {
    TriggerSearch search = Search(all);
    search.Bodies = {way.Body};
    search.To = search.From + std::chrono::days(way.Days);
    search.Where = {19.07, 72.88};
    const exact::ExactSky sky(session_->Ephemeris, exact::Reading::Kp, 'M');
    const std::vector<exact::Crossing> whole = exact::Crossings(
        sky, zodiac_, {way.Body, search.From, search.To, exact::Depth::Sub, search.Where});
    TriggerRun run(*session_, search);
    int steps = 0;
    double part = 0;
    for (; !run.Done(); ++steps) {
      EXPECT_LE(part, run.Part());
      part = run.Part();
      run.Step();
    }
    EXPECT_EQ(run.Part(), 1);
    EXPECT_TRUE(steps > 2 || way.Days == 0) << steps;
    const core::Table found = run.Table();
    ASSERT_EQ(found.Rows.size(), whole.size()) << exact::PointName(way.Body);
    for (std::size_t row = 0; row < whole.size(); ++row) {
      EXPECT_EQ(TextOf(found, row, TriggerColumn::From),
                core::StoredDateTimeText(whole[row].From + search.Offset));
      EXPECT_EQ(TextOf(found, row, TriggerColumn::Until),
                core::StoredDateTimeText(whole[row].Until + search.Offset));
      EXPECT_EQ(TextOf(found, row, TriggerColumn::SubLord), whole[row].Held.Sub);
    }
  }
}

// With all nine lords every span counts, and those that touch stay apart.
TEST_F(Triggers, AreOrderedByFromThenByTheBodiesAsGivenAndNotJoined) {
  const std::set<std::string> all = {"Sun",   "Moon",   "Mars", "Mercury", "Jupiter",
                                     "Venus", "Saturn", "Rahu", "Ketu"};
  for (const bool moonFirst : {true, false}) {
    TriggerSearch search = Search(all);
    if (!moonFirst) {
      search.Bodies = {Point::Sun, Point::Moon};
    }
    const core::Table triggers = BuildTriggers(*session_, search);
    EXPECT_EQ(triggers.Rows.size(),
              Crossings(Point::Moon).Rows.size() + Crossings(Point::Sun).Rows.size());
    EXPECT_EQ(TextOf(triggers, 0, TriggerColumn::From), "2026-11-24 10:00:00");
    EXPECT_EQ(TextOf(triggers, 1, TriggerColumn::From), "2026-11-24 10:00:00");
    EXPECT_EQ(TextOf(triggers, 0, TriggerColumn::Body), moonFirst ? "Moon" : "Sun");
    for (std::size_t row = 1; row < triggers.Rows.size(); ++row) {
      EXPECT_LE(TextOf(triggers, row - 1, TriggerColumn::From),
                TextOf(triggers, row, TriggerColumn::From));
    }
  }
}

// Stored cusps in hundredths; a house begins with its cusp and the last goes on over 0 degrees.
TEST_F(Triggers, NameTheNatalHouseOfTheirBegin) {
  chart::BirthTables birth;
  birth.HouseTable.Columns.resize(core::Table::Index(chart::HouseColumn::RetroRashi) + 1);
  for (int house = 0; house < 12; ++house) {
    birth.HouseTable.AddRow();
    birth.HouseTable.At(static_cast<std::size_t>(house), chart::HouseColumn::CuspDegree).Text =
        core::DoubleText((house * 30 + 345.35) - (house > 0 ? 360 : 0));
  }
  TriggerSearch search =
      Search({"Sun", "Moon", "Mars", "Mercury", "Jupiter", "Venus", "Saturn", "Rahu", "Ketu"});
  search.Natal = NatalCusps(birth);
  EXPECT_EQ(exact::UnitsOf((*search.Natal)[1]), exact::Units{34535} * 1296);
  search.Bodies = {Point::Moon};
  const core::Table triggers = BuildTriggers(*session_, search);
  const exact::ExactSky sky(session_->Ephemeris, exact::Reading::Kp, 'M');
  std::set<std::string> houses;
  for (std::size_t row = 0; row < triggers.Rows.size(); ++row) {
    const core::DateTime from =
        test::Moment(TextOf(triggers, row, TriggerColumn::From)) - search.Offset;
    double ahead = sky.PositionOf(Point::Moon, from).Longitude - 345.35;
    ahead += ahead < 0 ? 360 : 0;
    const std::string house = core::WholeText(core::Floor(ahead / 30) + 1);
    EXPECT_EQ(TextOf(triggers, row, TriggerColumn::House), house);
    houses.insert(house);
  }
  EXPECT_EQ(houses.size(), 12U);
}

TEST_F(Triggers, GoIntoACalendarWithTheirTimesInUtAndPeriodsWithTheirDays) {
  TriggerSearch search = Search({"Saturn", "Venus", "Mercury", "Moon"});
  const core::Table triggers = BuildTriggers(*session_, search);
  const auto events = TriggerEvents(triggers, search.Offset);
  ASSERT_EQ(events.size(), triggers.Rows.size());
  EXPECT_EQ(core::StoredDateTimeText(events[1].Start + search.Offset),
            TextOf(triggers, 1, TriggerColumn::From));
  EXPECT_EQ(core::StoredDateTimeText(*events[1].End + search.Offset),
            TextOf(triggers, 1, TriggerColumn::Until));
  core::Table planets{
      {{"Planet"}, {"Grade"}, {"Supporting"}, {"Denying"}, {"Ruling"}, {"Marks"}, {"Fruitful"}},
      {}};
  const core::Table periods = BuildMatterPeriods(
      {{{"Sun", "Moon", "Mars", ""}, test::Moment("2027-01-02"), test::Moment("2027-03-04")}},
      planets, test::Moment("1990-01-01"),
      {test::Moment("2026-01-01"), test::Moment("2028-01-01")});
  const std::string text = transit::CalendarText(PeriodEvents(periods, "A: Marriage", "1-2"),
                                                 test::Moment("2026-01-01"));
  for (const char* line :
       {"DTSTART;VALUE=DATE:20270102", "DTEND;VALUE=DATE:20270304",
        "SUMMARY:A: Marriage\\, Sun - Moon - Mars", "UID:matter-1-2-2-jan-2027-sun-moon-mars@"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line << "\n" << text;
  }
}

}  // namespace
}  // namespace orvex::judgement
