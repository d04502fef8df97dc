// What charts and graphs must show where a glance at a usual picture would not miss it.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cmath>

#include "core/cell_colors.h"
#include "support/test_home.h"
#include "ui/painting/chart_geometry.h"
#include "ui/painting/chart_painter.h"
#include "ui/painting/dasha_timeline.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/month_graph.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/page_painter.h"

namespace orvex::ui {
namespace {

QPointF MiddleOf(const QPolygonF& outline) {
  QPointF sum;
  for (const QPointF& corner : outline) {
    sum += corner;
  }
  return sum / static_cast<double>(outline.size()) - QPointF(0.5, 0.5);
}

// From field to field the way round the middle never turns back.
TEST(GeometryRules, FieldsGoRoundTheMiddleInTheirOrder) {
  const std::pair<char, double> styles[] = {{'N', -1}, {'E', -1}, {'S', 1}};
  for (const auto& [style, clockwise] : styles) {
    const auto& fields = GeometryOf(style).Fields;
    double round = 0;
    for (std::size_t i = 0; i < 12; ++i) {
      const QPointF a = MiddleOf(fields.at(i).Outline);
      const QPointF b = MiddleOf(fields.at((i + 1) % 12).Outline);
      const double turn = std::atan2(a.x() * b.y() - a.y() * b.x(), a.x() * b.x() + a.y() * b.y());
      EXPECT_GT(turn * clockwise, 0) << style << i + 1;
      round += turn * clockwise;
    }
    EXPECT_NEAR(round, 2 * M_PI, 1e-9) << style;
  }
  EXPECT_LT(MiddleOf(GeometryOf('N').Fields[0].Outline).y(), 0);
  EXPECT_LT(MiddleOf(GeometryOf('E').Fields[0].Outline).y(), 0);
  EXPECT_EQ(GeometryOf('S').Fields[11].Outline.boundingRect().topLeft(), QPointF(0, 0));
}

class PaintingRules : public testing::Test {
 protected:
  static QImage Painted(const report::ChartPicture& picture, const ChartColors& colors) {
    QImage image(480, 480, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintChart(painter, image.rect(), picture, colors);
    return image;
  }

  static int CountOf(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        count += image.pixelColor(x, y) == color ? 1 : 0;
      }
    }
    return count;
  }

  OffscreenPainting painting_;
};

TEST_F(PaintingRules, OnlyRetrogradePlanetsAreRed) {
  for (const ChartColors& colors : {PrintColors(), DarkColors()}) {
    report::ChartPicture picture{'N', "Rashi", {}};
    picture.Fields[0].Codes = {"SA", "ME*", "JU"};
    EXPECT_EQ(CountOf(Painted(picture, colors), colors.Retrograde), 0);
    picture.Fields[0].Codes = {"SA~", "ME*~", "JU~"};
    EXPECT_GT(CountOf(Painted(picture, colors), colors.Retrograde), 20);
  }
}

TEST_F(PaintingRules, TheTitleStandsInTheFreeMiddle) {
  for (const char style : {'E', 'S'}) {
    const QImage titled = Painted({style, "Navamsha", {}}, PrintColors());
    const QImage bare = Painted({style, "", {}}, PrintColors());
    int inside = 0;
    for (int y = 0; y < 480; ++y) {
      for (int x = 0; x < 480; ++x) {
        const bool middle = x > 140 && x < 340 && y > 140 && y < 340;
        const bool differs = titled.pixel(x, y) != bare.pixel(x, y);
        inside += middle && differs ? 1 : 0;
        EXPECT_TRUE(middle || !differs);
      }
    }
    EXPECT_GT(inside, 100) << style;
  }
}

TEST(TimelineRules, APeriodRunsFromItsFirstDayToTheDayBeforeTheNext) {
  TimelineLevel level;
  const char* const borders[] = {"2000-01-01", "2007-01-01", "2027-01-01"};
  for (std::size_t i = 0; i < 2; ++i) {
    level.Periods.push_back(
        {i == 0 ? "Ketu" : "Venus", test::Moment(borders[i]), test::Moment(borders[i + 1])});
  }
  const std::pair<const char*, std::optional<std::size_t>> days[] = {{"1999-12-31", std::nullopt},
                                                                     {"2000-01-01", 0},
                                                                     {"2006-12-31", 0},
                                                                     {"2007-01-01", 1},
                                                                     {"2026-12-31", 1},
                                                                     {"2027-01-01", std::nullopt}};
  for (const auto& [day, row] : days) {
    EXPECT_EQ(PeriodHolding(level, test::Moment(day)), row) << day;
  }
}

TEST_F(PaintingRules, AGraphOnAPageIsLightAndAsTallAsAPageAcrossHoldsUnderATitle) {
  QRectF sheet;
  const PageFigure figure =
      GraphFigure([&sheet](QPainter& painter, const QRectF& area, Ground ground) {
        sheet = painter.transform().mapRect(area);
        EXPECT_EQ(ground, Ground::Light);
      });
  const ComposedDocument composed = Compose({"",
                                             "",
                                             "",
                                             "",
                                             {{PageText{PageRole::Title, "T"}},
                                              {PageText{PageRole::Section, "S"}},
                                              {PageFigures{{figure}}}}},
                                            {QPageSize(QPageSize::A4), true, {}});
  ASSERT_EQ(composed.Pages.size(), 1U);
  QImage image(composed.Setup.Size().toSize(), QImage::Format_Grayscale8);
  QPainter painter(&image);
  PaintPage(painter, composed, 0);
  EXPECT_NEAR(sheet.width(), composed.Setup.Body().width(), 2);
  EXPECT_LT(sheet.bottom(), composed.Setup.Body().bottom());
}

// A month of one planet as SVG; its texts and strokes can be read there.
std::string MonthSvg(bool retrograde, bool station) {
  transit::MonthGrid month;
  month.Grid.Columns = {{"Date"}, {"Mercury"}};
  core::DateTime day = test::Moment("2026-11-01");
  for (int row = 0; row < 6; ++row) {
    core::Row& added = month.Grid.AddRow();
    added.Tag = "1*" + core::LongDateText(day, false);
    added.Cells[1].SortKey = "10" + std::to_string(row) + ".00";
    const bool back = station && row > 2 ? !retrograde : retrograde;
    added.Cells[1].Foreground = back ? core::kRed : "";
    day += std::chrono::days(1);
  }
  const MonthPicture picture = PictureOfMonth(month, {});
  return SvgText({1120, 770}, "month", [&picture](QPainter& painter) {
    PaintMonth(painter, QRectF(0, 0, 1120, 770), picture, Ground::Light);
  });
}

TEST_F(PaintingRules, RetrogradeMotionIsDashedAndAStationTellsItsDirection) {
  const auto holds = [](const std::string& svg, const char* what) {
    return svg.find(what) != std::string::npos;
  };
  EXPECT_TRUE(holds(MonthSvg(true, false), "stroke-dasharray"));
  EXPECT_FALSE(holds(MonthSvg(false, false), "stroke-dasharray"));
  EXPECT_TRUE(holds(MonthSvg(false, true), ">R<"));
  EXPECT_FALSE(holds(MonthSvg(false, true), ">D<"));
  EXPECT_TRUE(holds(MonthSvg(true, true), ">D<"));
  EXPECT_FALSE(holds(MonthSvg(true, true), ">R<"));
}

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

TEST(StyleRules, EveryPlanetIsLegibleOnItsGroundAndHasAColourOfItsOwn) {
  const char* const planets[] = {"Sun",     "Moon",   "Mercury", "Venus", "Mars",
                                 "Jupiter", "Saturn", "Rahu",    "Ketu"};
  for (const Ground ground : {Ground::Light, Ground::Dark}) {
    const double paper = Luminance(ColorsOn(ground).Paper);
    std::vector<QColor> seen;
    for (const char* planet : planets) {
      const QColor color = PlanetColor(planet, ground);
      const double ink = Luminance(color);
      EXPECT_GE((std::max(ink, paper) + 0.05) / (std::min(ink, paper) + 0.05), 4.0) << planet;
      EXPECT_EQ(std::count(seen.begin(), seen.end(), color), 0) << planet;
      seen.push_back(color);
    }
    EXPECT_EQ(PlanetColor("Pluto", ground), ColorsOn(ground).Text);
  }
}

}  // namespace
}  // namespace orvex::ui
