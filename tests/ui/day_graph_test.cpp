// The graph whose days stand in the rows of the grid.
#include "ui/painting/day_graph.h"

#include <gtest/gtest.h>

#include "support/test_home.h"
#include "ui/painting/offscreen.h"

namespace orvex::ui {
namespace {

constexpr double kExact = 1e-6;

class DayGraph : public testing::Test {
 protected:
  MonthPicture Month(int month, int year) {
    return PictureOfMonth(
        transit::CreateGrid(*session_, transit::UserCityView(*session_), month, year),
        session_->Time.Today());
  }

  static DayGraphLayout Placed(const MonthPicture& picture, double width, double first = 26) {
    return LayOutDayGraph(picture, {26, first, 18}, width, QFont(), QFont());
  }

  OffscreenPainting painting_;
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(DayGraph, EachDayIsInItsRowAndEachSignInItsColumn) {
  const MonthPicture picture = Month(11, 2026);
  for (const double first : {26.0, -100.0}) {  // as it stands, and scrolled
    const DayGraphLayout layout = Placed(picture, 376, first);
    for (std::size_t i = 0; i < picture.Series.size(); ++i) {
      for (const std::size_t row : {0U, 13U, 29U}) {
        const double longitude = picture.Series[i].Longitudes[row];
        const QPointF at = layout.Scale.At(static_cast<double>(row), longitude);
        EXPECT_NEAR(at.y(), first + 18 * (static_cast<double>(row) + 0.5), kExact);
        EXPECT_NEAR(at.x(), 8 + longitude, kExact);  // a pixel a degree
        EXPECT_TRUE(DayBox(layout, row).contains(at));
        const auto cell = CellNear(picture, layout.Lines, layout.Scale, at);
        ASSERT_TRUE(cell);
        EXPECT_EQ(cell->Row, row);
      }
    }
    EXPECT_EQ(layout.Signs.at(3).Text, "Cn");
    EXPECT_NEAR(layout.Signs.at(3).Box.center().x(), 8 + 105, 1);
    EXPECT_NEAR(layout.Scale.SignBox(12).right(), 368, kExact);
  }
}

TEST_F(DayGraph, CodesStandBesideTheirLinesAndApart) {
  for (const auto& [month, year] : {std::pair(11, 2026), std::pair(2, 2024), std::pair(5, 1943)}) {
    const MonthPicture picture = Month(month, year);
    for (const double width : {270.0, 430.0, 900.0}) {
      SCOPED_TRACE(testing::Message() << month << " " << year << " in " << width);
      const DayGraphLayout layout = Placed(picture, width);
      for (std::size_t a = 0; a < layout.Lines.size(); ++a) {
        const QRectF& box = layout.Lines[a].Code.Box;
        EXPECT_TRUE(layout.Scale.Plot.contains(box)) << a;
        const std::size_t row = layout.Scale.RowAt(box.center(), picture.Days.size());
        const double x =
            layout.Scale.At(static_cast<double>(row), picture.Series[a].Longitudes[row]).x();
        EXPECT_LT(std::min(std::abs(box.left() - x), std::abs(box.right() - x)), 10) << a;
        for (std::size_t b = 0; b < a; ++b) {
          EXPECT_FALSE(layout.Lines[b].Code.Box.intersects(box)) << a << " and " << b;
        }
      }
    }
  }
}

}  // namespace
}  // namespace orvex::ui
