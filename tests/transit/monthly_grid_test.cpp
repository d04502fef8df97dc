#include "transit/monthly_grid.h"

#include "core/cell_colors.h"
#include "support/test_home.h"
#include "transit/hour_table.h"
#include "transit/month_series.h"
#include "transit/transit_details.h"

namespace orvex::transit {
namespace {

class TransitDesk : public testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  GridView view_ = UserCityView(*session_);

  MonthGrid Grid(int year, int month) { return CreateGrid(*session_, view_, month, year); }
};

TEST_F(TransitDesk, MonthsHaveTheirDaysAndTheirButtons) {
  struct Case {
    int Year;
    int Month;
    std::size_t Days;
    const char* Previous;
    bool PreviousOffered;
    const char* Next;
    bool NextOffered;
  };
  const std::vector<Case> cases = {
      {2024, 2, 29, "&< January 2024", true, "March 2024 &>", true},
      {2026, 12, 31, "&< November 2026", true, "January 2027 &>", true},
      {2027, 1, 31, "&< December 2026", true, "February 2027 &>", true},
      {1500, 1, 31, "&< December 1499", false, "February 1500 &>", true},
      {2500, 12, 31, "&< November 2500", true, "January 2501 &>", false}};
  for (const Case& each : cases) {
    const MonthGrid grid = Grid(each.Year, each.Month);
    EXPECT_EQ(grid.Grid.Rows.size(), each.Days);
    EXPECT_EQ(grid.Previous.Caption, each.Previous);
    EXPECT_EQ(grid.Previous.Offered, each.PreviousOffered);
    EXPECT_EQ(grid.Next.Caption, each.Next);
    EXPECT_EQ(grid.Next.Offered, each.NextOffered);
    EXPECT_TRUE(grid.ThisMonth.Offered);
    EXPECT_EQ(grid.ThisMonth.Caption, "Nov 2026");
  }
  EXPECT_THROW(Grid(1499, 12), std::out_of_range);
  EXPECT_THROW(Grid(2501, 1), std::out_of_range);
  EXPECT_THROW(Grid(2026, 13), std::out_of_range);
}

TEST_F(TransitDesk, TheMonthOfTodayShowsTodayAndNoLinkToItself) {
  const MonthGrid grid = Grid(2026, 11);
  EXPECT_FALSE(grid.ThisMonth.Offered);
  EXPECT_EQ(grid.Title, "Planetary Transit in Dubai at 10:00");
  for (std::size_t row = 0; row < grid.Grid.Rows.size(); ++row) {
    for (const core::Cell& cell : grid.Grid.Rows[row].Cells) {
      EXPECT_EQ(cell.Background, row == 23 ? core::kGoodColor : "");
    }
  }
  EXPECT_EQ(grid.Grid.Rows[23].Tag, "24*24 November 2026");
  const core::Cell& rahu = grid.Grid.Rows[0].Cells[8];
  EXPECT_EQ(rahu.Tag, "Planet*8");
  EXPECT_EQ(rahu.Foreground, core::kRed);
  EXPECT_EQ(rahu.Tooltip, "Rahu in Aquarius (Nakshatra: Dhanishtha, Pada: 3)");
  EXPECT_EQ(MonthOfTag(grid.Next.Tag), test::Moment("2026-12-01"));
}

TEST_F(TransitDesk, ATimeEarlierThanTheOffsetKeepsTheDateOfTheRow) {
  view_.TransitTime = test::Moment("2000-01-01 02:00");
  const MonthGrid early = Grid(2026, 11);
  view_.TransitTime = test::Moment("2000-01-01 22:00");
  view_.ZoneHours = 0;
  EXPECT_EQ(early.Grid.Rows[4].Cells[2].Text, Grid(2026, 11).Grid.Rows[4].Cells[2].Text);
}

TEST_F(TransitDesk, WithoutANodeInTheSettingsItsColumnsStayEmpty) {
  session_->State.RahuKetuCalculation = 'X';
  const core::Table grid = Grid(2026, 11).Grid;
  EXPECT_TRUE(grid.Rows[0].Cells[8].Text.empty());
  EXPECT_TRUE(grid.Rows[0].Cells[9].Text.empty());
  EXPECT_EQ(MonthSeries(grid).size(), 7U);
  const core::Table hours =
      BuildHourTable(*session_, Planet::Ketu, test::Moment("2026-11-01"), 0, "Hour");
  EXPECT_TRUE(hours.At(0, HourColumn::Degree).Text.empty());
}

TEST_F(TransitDesk, TagsOfCellsAndRowsTellPlanetAndDateAndNothingElseDoes) {
  const core::Table grid = Grid(2026, 11).Grid;
  EXPECT_EQ(PlanetOfCell(grid.Rows[4].Cells[9].Tag), Planet::Ketu);
  EXPECT_EQ(DateOfRow(grid.Rows[4].Tag), test::Moment("2026-11-05"));
  for (const char* text : {"", "Planet*", "Planet*0", "Planet*10", "Planet*x", "Date*1", "1"}) {
    EXPECT_FALSE(PlanetOfCell(text)) << text;
    EXPECT_FALSE(DateOfRow(text)) << text;
  }
}

TEST_F(TransitDesk, AFoundTransitIsMarkedInTheGrid) {
  core::Table grid = Grid(2026, 11).Grid;
  const auto place = HighlightCell(grid, "5 November 2026", "Mars");
  ASSERT_TRUE(place);
  EXPECT_EQ(place->Row, 4U);
  EXPECT_EQ(place->Column, 5U);
  EXPECT_EQ(grid.Rows[4].Cells[5].Background, "EEEDF5");
  EXPECT_FALSE(HighlightCell(grid, "5 December 2026", "Mars"));
}

TEST_F(TransitDesk, SeriesMarkEachChangeOfSignAndEachStation) {
  const core::Table grid = Grid(2026, 11).Grid;
  std::size_t texts = 0;
  for (const PlanetSeries& series : MonthSeries(grid)) {
    EXPECT_EQ(series.Longitudes.size(), 30U);
    for (const SeriesMark& mark : series.Marks) {
      texts += mark.Text == "Sun enters Scorpio" || mark.Text == "Mercury turns direct" ? 1U : 0U;
      EXPECT_GT(mark.Row, 0U);
    }
  }
  EXPECT_EQ(texts, 2U);
}

TEST_F(TransitDesk, DetailsKnowTheirDayAndTheLimitsOfTheYears) {
  struct Case {
    const char* Date;
    bool Previous;
    bool Next;
    bool Today;
  };
  for (const Case& each : {Case{"1500-01-01", false, true, true},
                           {"2500-12-31", true, false, true},
                           {"2026-11-24", true, true, false}}) {
    const TransitDetails view =
        GetTransitForPlanet(*session_, Planet::Mars, test::Moment(each.Date));
    EXPECT_EQ(view.Hours.Rows.size(), 24U);
    EXPECT_EQ(view.PreviousDay.Enabled, each.Previous);
    EXPECT_EQ(view.NextDay.Enabled, each.Next);
    EXPECT_EQ(view.TodayLink, each.Today);
    const auto subject = SubjectOfTag(view.Tag);
    ASSERT_TRUE(subject);
    EXPECT_EQ(subject->Body, Planet::Mars);
    EXPECT_EQ(subject->Date, test::Moment(each.Date));
  }
}

TEST_F(TransitDesk, MinutesBeginWithTheirHourAndGoByFive) {
  const core::Table hours =
      GetTransitForPlanet(*session_, Planet::Moon, test::Moment("2026-11-24")).Hours;
  const auto minutes = GetMinuteDetails(*session_, Planet::Moon, hours.Rows[9].Tag);
  ASSERT_TRUE(minutes);
  ASSERT_EQ(minutes->Minutes.Rows.size(), 12U);
  EXPECT_EQ(minutes->Minutes.Rows[0].Cells[2].Text, hours.Rows[9].Cells[2].Text);
  EXPECT_EQ(minutes->Minutes.At(11, HourColumn::Time).Text, "09:55");
  EXPECT_EQ(minutes->Minutes.Columns[0].Caption, "Min");
  EXPECT_FALSE(GetMinuteDetails(*session_, Planet::Moon, "nine"));
}

}  // namespace
}  // namespace orvex::transit
