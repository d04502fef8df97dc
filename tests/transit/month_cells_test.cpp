#include "transit/month_cells.h"

#include <gtest/gtest.h>

#include "chart/zodiac_lookups.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "support/test_home.h"
#include "transit/monthly_grid.h"

namespace orvex::transit {
namespace {

// A cell as the grid writes it.
core::Cell Standing(int sign, const std::string& degree, bool retrograde) {
  core::Cell cell;
  cell.Text = "   " + core::WholeText(sign) + "     " + degree;
  cell.SortKey = core::TwoDecimals(30 * (sign - 1) + core::ToDouble(degree));
  cell.Foreground = retrograde ? core::kRed : "";
  return cell;
}

TEST(MonthCells, ADayTellsWhatIsNewSinceTheDayBeforeTheFirstOfTheMonthToo) {
  struct Case {
    core::Cell Before;
    core::Cell Now;
    bool Enters;
    bool Turns;
  };
  const std::vector<Case> cases = {
      {Standing(4, "29.50", false), Standing(5, "0.40", false), true, false},
      {Standing(5, "0.40", false), Standing(5, "1.40", false), false, false},
      {Standing(7, "0.30", true), Standing(6, "29.97", true), true, false},
      {Standing(12, "29.90", false), Standing(1, "0.10", false), true, false},
      {Standing(6, "3.10", true), Standing(6, "3.12", false), false, true},
      {Standing(6, "3.10", false), Standing(6, "3.09", true), false, true},
      {Standing(6, "29.99", true), Standing(7, "0.01", false), true, true}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.Before.SortKey + " to " + each.Now.SortKey);
    core::Table grid{{{"Date"}, {"Mars"}}, {}};
    grid.Rows.push_back({{core::Cell(), each.Now}, ""});
    grid.Rows.push_back({{core::Cell(), each.Now}, ""});
    const auto cells = MonthCells(grid, {{core::Cell(), each.Before}, ""});
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[0].at(0).EntersSign, each.Enters);
    EXPECT_EQ(cells[0].at(0).Turns, each.Turns);
    EXPECT_EQ(cells[0].at(0).Retrograde, each.Now.Foreground == core::kRed);
    EXPECT_FALSE(cells[1].at(0).EntersSign || cells[1].at(0).Turns);
  }
}

class MonthCellsOfTheSky : public testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  GridView view_ = UserCityView(*session_);
};

// Entries of the almanac of that month for ten o'clock in Dubai.
TEST_F(MonthCellsOfTheSky, SignsAndStationsOfNovember2026) {
  const MonthGrid grid = CreateGrid(*session_, view_, 11, 2026);
  const core::Table before = GridOfDay(*session_, view_, test::Moment("2026-10-31"));
  const auto cells = MonthCells(grid.Grid, before.Rows.front());
  ASSERT_EQ(cells.size(), 30U);
  struct Case {
    int Day;
    int Planet;  // column of the grid
    int Sign;
    const char* Degree;
    bool Enters;
    bool Turns;
  };
  for (const Case& each : {Case{1, 2, 4, "6.85", true, false}, Case{2, 2, 4, "20.78", false, false},
                           Case{17, 1, 8, "0.75", true, false}, Case{6, 4, 6, "29.95", true, false},
                           Case{14, 3, 7, "10.92", false, true}}) {
    SCOPED_TRACE(testing::Message() << each.Day << ", planet " << each.Planet);
    const MonthCell& cell = cells.at(static_cast<std::size_t>(each.Day - 1))
                                .at(static_cast<std::size_t>(each.Planet - 1));
    EXPECT_EQ(cell.Sign, each.Sign);
    EXPECT_EQ(cell.Degree, each.Degree);
    EXPECT_EQ(cell.EntersSign, each.Enters);
    EXPECT_EQ(cell.Turns, each.Turns);
  }
}

TEST_F(MonthCellsOfTheSky, PlanetsWithoutPositionsHaveNoSign) {
  session_->State.RahuKetuCalculation = 'X';
  const MonthGrid grid = CreateGrid(*session_, view_, 11, 2026);
  const core::Table before = GridOfDay(*session_, view_, test::Moment("2026-10-31"));
  const auto cells = MonthCells(grid.Grid, before.Rows.front());
  EXPECT_EQ(cells[0].at(7).Sign, 0);
  EXPECT_EQ(cells[0].at(8).Sign, 0);
  EXPECT_EQ(cells[0].at(6).Sign, 12);
}

}  // namespace
}  // namespace orvex::transit
