#include "ui/painting/month_graph.h"

#include <gtest/gtest.h>

#include "core/cell_colors.h"
#include "support/test_home.h"
#include "ui/painting/offscreen.h"

namespace orvex::ui {
namespace {

constexpr double kNear = 1e-6;

class MonthGraph : public testing::Test {
 protected:
  // A month whose planets stand at the same longitudes from its first day on.
  static transit::MonthGrid GridOf(const std::vector<std::vector<std::string>>& longitudes,
                                   const std::vector<std::string>& planets, bool retrograde) {
    transit::MonthGrid month;
    month.Grid.Columns = {{"Date"}};
    for (const std::string& planet : planets) {
      month.Grid.Columns.push_back({planet});
    }
    core::DateTime day = test::Moment("2026-11-01");
    for (std::size_t row = 0; row < longitudes.front().size(); ++row) {
      core::Row& added = month.Grid.AddRow();
      added.Tag = "1*" + core::LongDateText(day, false);
      for (std::size_t i = 0; i < planets.size(); ++i) {
        added.Cells[i + 1].SortKey = longitudes[i][row];
        added.Cells[i + 1].Foreground = retrograde ? core::kRed : "";
      }
      day += std::chrono::days(1);
    }
    return month;
  }

  static MonthLayout Placed(const MonthPicture& picture, QSize size = {1000, 700}) {
    return LayOutMonth(picture, QFont(), QRectF(QPointF(0, 0), QSizeF(size)));
  }

  static double Y(const MonthLayout& layout, double longitude) {
    return layout.Plot.bottom() - longitude / 360 * layout.Plot.height();
  }

  static double X(const MonthLayout& layout, double row, double days) {
    return layout.Plot.left() + (row + 0.5) * layout.Plot.width() / days;
  }

  OffscreenPainting painting_;
};

TEST_F(MonthGraph, LinesEndAtTheRimsAndCrossEveryBorderOfSignsOnTheSideOfTheNewOne) {
  struct Case {
    const char* From;
    const char* To;
    std::size_t Runs;
    double Crossing;  // part of the day; where no border is crossed, -1
    double Border;    // the longitude of the mark
    const char* Mark;
  };
  const std::vector<Case> cases = {{"25.00", "35.00", 1, 0.5, 30, "Moon enters Taurus"},
                                   {"55.00", "65.00", 1, 0.5, 60, "Moon enters Gemini"},
                                   {"85.00", "95.00", 1, 0.5, 90, "Moon enters Cancer"},
                                   {"115.00", "125.00", 1, 0.5, 120, "Moon enters Leo"},
                                   {"145.00", "155.00", 1, 0.5, 150, "Moon enters Virgo"},
                                   {"175.00", "185.00", 1, 0.5, 180, "Moon enters Libra"},
                                   {"205.00", "215.00", 1, 0.5, 210, "Moon enters Scorpio"},
                                   {"235.00", "245.00", 1, 0.5, 240, "Moon enters Sagittarius"},
                                   {"265.00", "275.00", 1, 0.5, 270, "Moon enters Capricorn"},
                                   {"295.00", "305.00", 1, 0.5, 300, "Moon enters Aquarius"},
                                   {"325.00", "335.00", 1, 0.5, 330, "Moon enters Pisces"},
                                   {"357.00", "9.00", 2, 0.25, 0, "Moon enters Aries"},
                                   {"9.00", "357.00", 2, 0.75, 360, "Moon enters Pisces"},
                                   {"62.00", "58.00", 1, 0.5, 60, "Moon enters Taurus"},
                                   {"60.00", "59.00", 1, 0, 60, "Moon enters Taurus"},
                                   {"359.00", "360.00", 2, 1, 0, "Moon enters Aries"},
                                   {"10.00", "11.00", 1, -1, 0, ""}};
  for (const Case& each : cases) {
    SCOPED_TRACE(std::string(each.From) + " to " + each.To);
    const MonthPicture picture =
        PictureOfMonth(GridOf({{each.From, each.To}}, {"Moon"}, false), {});
    const MonthLayout layout = Placed(picture);
    const PlanetLine& line = layout.Lines.at(0);
    EXPECT_EQ(line.Runs.size(), each.Runs);
    for (const LineRun& run : line.Runs) {
      const QRectF& box = run.Points.boundingRect();
      EXPECT_LT(box.height(), layout.Plot.height() / 12);
    }
    ASSERT_EQ(line.Marks.size(), each.Crossing < 0 ? 0U : 1U);
    if (each.Crossing >= 0) {
      EXPECT_EQ(line.Marks[0].Mark.Text, each.Mark);
      EXPECT_NEAR(line.Marks[0].At.x(), X(layout, each.Crossing, 2), kNear);
      EXPECT_NEAR(line.Marks[0].At.y(), Y(layout, each.Border), kNear);
    }
  }
}

TEST_F(MonthGraph, AStationStandsOnTheFirstDayOfTheNewMotionAndTheLineChangesThere) {
  transit::MonthGrid grid =
      GridOf({{"100.00", "100.20", "100.25", "100.20", "99.90"}}, {"Mercury"}, false);
  grid.Grid.Rows[3].Cells[1].Foreground = core::kRed;
  grid.Grid.Rows[4].Cells[1].Foreground = core::kRed;
  const MonthPicture picture = PictureOfMonth(grid, {});
  const MonthLayout layout = Placed(picture);
  const PlanetLine& line = layout.Lines.at(0);
  ASSERT_EQ(line.Marks.size(), 1U);
  EXPECT_EQ(line.Marks[0].Mark.Text, "Mercury turns retrograde");
  EXPECT_TRUE(line.Marks[0].Retrograde);
  EXPECT_NEAR(line.Marks[0].At.x(), X(layout, 3, 5), kNear);
  ASSERT_EQ(line.Runs.size(), 2U);
  EXPECT_FALSE(line.Runs[0].Retrograde);
  EXPECT_TRUE(line.Runs[1].Retrograde);
  EXPECT_EQ(line.Runs[0].Points.back(), line.Marks[0].At);
  EXPECT_EQ(line.Runs[1].Points.front(), line.Marks[0].At);
  EXPECT_EQ(MonthHint(picture, layout, line.Marks[0].At + QPointF(3, 2)).toStdString(),
            "Mercury turns retrograde\nbetween 3 November 2026 and 4 November 2026");
}

TEST_F(MonthGraph, CodesOfPlanetsThatStandTogetherKeepApartInTheOrderOfTheirLines) {
  const std::vector<std::string> planets = {"Sun",     "Moon",   "Mercury", "Venus", "Mars",
                                            "Jupiter", "Saturn", "Rahu",    "Ketu"};
  for (const char* crowded : {"0.00", "181.00", "359.99"}) {
    for (const QSize size : {QSize(480, 320), QSize(1120, 770), QSize(2400, 1500)}) {
      std::vector<std::vector<std::string>> longitudes(9, {crowded, crowded});
      const MonthLayout layout =
          Placed(PictureOfMonth(GridOf(longitudes, planets, true), {}), size);
      const QRectF paper(QPointF(0, 0), QSizeF(size));
      for (std::size_t a = 0; a < 9; ++a) {
        EXPECT_TRUE(paper.contains(layout.Lines[a].Code.Box)) << crowded << " " << planets[a];
        for (std::size_t b = 0; b < a; ++b) {
          EXPECT_LE(layout.Lines[b].Code.Box.bottom(), layout.Lines[a].Code.Box.top() + kNear)
              << crowded << " " << planets[a] << " " << planets[b];
        }
      }
    }
  }
}

TEST_F(MonthGraph, SpreadLabelsMoveOnlyAsFarAsTheyMust) {
  struct Case {
    std::vector<double> Wanted;
    std::vector<double> Centres;
  };
  const std::vector<Case> cases = {{{}, {}},
                                   {{50}, {50}},
                                   {{-5}, {0}},
                                   {{20, 50, 90}, {20, 50, 90}},
                                   {{50, 50, 50}, {40, 50, 60}},
                                   {{10, 50, 52, 99}, {10, 46, 56, 99}},
                                   {{98, 99, 100}, {80, 90, 100}},
                                   {std::vector<double>(21, 30), {}}};
  for (const Case& each : cases) {
    const std::vector<double> centres = SpreadApart(each.Wanted, 10, 0, 100);
    ASSERT_EQ(centres.size(), each.Wanted.size());
    for (std::size_t i = 0; i < each.Centres.size(); ++i) {
      EXPECT_NEAR(centres[i], each.Centres[i], kNear);
    }
    if (centres.size() > 20) {
      EXPECT_NEAR(centres.front(), 0, kNear);
      EXPECT_NEAR(centres[1], 5, kNear);
      EXPECT_NEAR(centres.back(), 100, kNear);
    }
  }
}

class MonthOfTheSky : public MonthGraph {
 protected:
  MonthPicture Month(int year, int month) {
    const auto today = test::Moment("2026-11-24");
    return PictureOfMonth(
        transit::CreateGrid(*session_, transit::UserCityView(*session_), month, year), today);
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(MonthOfTheSky, EveryMonthHasItsDaysInTheMiddleOfTheirColumnsAndOnlyTheRightOneToday) {
  struct Case {
    int Year;
    int Month;
    std::size_t Days;
    std::optional<std::size_t> Today;
  };
  for (const Case& each : {Case{2025, 2, 28, {}}, Case{2024, 2, 29, {}}, Case{2026, 11, 30, 23},
                           Case{2026, 12, 31, {}}}) {
    const MonthPicture picture = Month(each.Year, each.Month);
    EXPECT_EQ(picture.Today, each.Today);
    for (const QSize size : {QSize(480, 320), QSize(1000, 700)}) {
      const MonthLayout layout = Placed(picture, size);
      ASSERT_EQ(layout.Days.size(), each.Days);
      EXPECT_EQ(layout.Today.has_value(), each.Today.has_value());
      QRectF before;
      for (std::size_t row = 0; row < each.Days; ++row) {
        const DayTick& day = layout.Days[row];
        EXPECT_NEAR(day.X, X(layout, static_cast<double>(row), static_cast<double>(each.Days)),
                    kNear);
        if (!day.Label.Text.isEmpty()) {
          EXPECT_FALSE(day.Label.Box.intersects(before)) << row;
          before = day.Label.Box;
        }
      }
      EXPECT_EQ(layout.Days[0].Label.Text.section('\n', 0, 0), "1");
      if (each.Today) {
        EXPECT_EQ(*layout.Today, layout.Days[*each.Today].X);
        EXPECT_EQ(layout.TodayLabel.Text, "Today, 24 Nov 2026");
      }
    }
  }
}

TEST_F(MonthOfTheSky, NoLineEverCrossesThePictureAndHintsTellWhatTheGridTells) {
  for (int month = 1; month <= 12; ++month) {
    const MonthPicture picture = Month(2026, month);
    const MonthLayout layout = Placed(picture);
    ASSERT_EQ(layout.Lines.size(), 9U);
    const double day = layout.Plot.width() / static_cast<double>(picture.Days.size());
    for (const PlanetLine& line : layout.Lines) {
      for (const LineRun& run : line.Runs) {
        for (qsizetype i = 1; i < run.Points.size(); ++i) {
          const QPointF step = run.Points[i] - run.Points[i - 1];
          EXPECT_LE(std::abs(step.x()), day + kNear);
          EXPECT_LT(std::abs(step.y()), layout.Plot.height() * 16 / 360);
        }
      }
    }
  }
  const MonthPicture picture = Month(2026, 11);
  const MonthLayout layout = Placed(picture);
  const QPointF saturn(layout.Days[4].X, Y(layout, picture.Series[6].Longitudes[4]));
  EXPECT_EQ(MonthHint(picture, layout, saturn + QPointF(2, 1)).toStdString(),
            picture.Grid.Rows[4].Cells[7].Tooltip + "\n5 November 2026, 14.88° retrograde");
  EXPECT_EQ(MonthHint(picture, layout, layout.Lines[6].Code.Box.center())
                .section('\n', 1)
                .section(',', 0, 0),
            "30 November 2026");
  EXPECT_EQ(MonthHint(picture, layout, {1, 1}), "");
}

}  // namespace
}  // namespace orvex::ui
