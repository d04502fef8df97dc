#include "ui/painting/dasha_timeline.h"

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "chart/dasha.h"
#include "horoscope/create_horoscope.h"
#include "support/test_home.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/offscreen.h"

namespace orvex::ui {
namespace {

class DashaTimeline : public testing::Test {
 protected:
  chart::HoroscopeModel Model(const std::string& birth, const std::string& name = "Asha Rao") {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.CityId = 1;
    form.FullName = name;
    form.Birth = test::Moment(birth);
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << saved.Refused->Text;
    return horoscope::CreateHoroscope(*session_, saved.Id)->Model;
  }

  TimelinePicture Picture(const chart::HoroscopeModel& model) {
    return PictureOfDashas(model, session_->Time.Today());
  }

  static TimelineLayout Placed(const TimelinePicture& picture, QSize size = {1120, 770}) {
    return LayOutTimeline(picture, QFont(), QRectF(QPointF(0, 0), QSizeF(size)));
  }

  OffscreenPainting painting_;
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(DashaTimeline, BarsFollowOneAnotherOverTheWholeRowInProportionToTheirDays) {
  const TimelinePicture picture = Picture(Model("1990-07-05 14:30:00"));
  const TimelineLayout layout = Placed(picture);
  EXPECT_EQ(layout.Rows[0].Heading.Text, "Dashas");
  for (std::size_t level = 0; level < kTimelineLevels; ++level) {
    const TimelineRow& row = layout.Rows.at(level);
    const std::vector<TimelinePeriod>& periods = picture.Levels.at(level).Periods;
    ASSERT_EQ(row.Bars.size(), 9U);
    EXPECT_NEAR(row.Bars.front().Box.left(), row.Axis.left(), 1e-6);
    EXPECT_NEAR(row.Bars.back().Box.right(), row.Axis.right(), 1e-6);
    const auto all =
        static_cast<double>(core::DaysBetween(periods.front().Start, periods.back().End));
    for (std::size_t i = 0; i < 9; ++i) {
      const auto days = static_cast<double>(core::DaysBetween(periods[i].Start, periods[i].End));
      EXPECT_NEAR(row.Bars[i].Box.width(), row.Axis.width() * days / all, 1e-6);
      EXPECT_NEAR(row.Bars[i].Box.left(), i == 0 ? row.Axis.left() : row.Bars[i - 1].Box.right(),
                  1e-6);
    }
    ASSERT_TRUE(row.Today);
    const std::size_t running = PeriodHolding(picture.Levels.at(level), picture.Today).value();
    EXPECT_EQ(picture.Levels.at(level).Chosen, running);
    EXPECT_GE(*row.Today, row.Bars[running].Box.left());
    EXPECT_LE(*row.Today, row.Bars[running].Box.right());
    EXPECT_EQ(row.Birth.has_value(), level == 0);
  }
}

TEST_F(DashaTimeline, NoTwoTextsTouchWhateverIsChosenAndHoweverSmallTheWindow) {
  chart::HoroscopeModel model = Model("2026-10-05 14:30:00");
  for (std::size_t dasha = 0; dasha < 9; ++dasha) {
    chart::SelectPeriod(*session_, model, chart::DashaLevel::Dasha, dasha);
    for (const QSize size : {QSize(480, 320), QSize(1120, 770), QSize(2400, 1400)}) {
      const TimelineLayout layout = Placed(Picture(model), size);
      std::vector<GraphLabel> texts = {layout.Title};
      for (const TimelineRow& row : layout.Rows) {
        texts.push_back(row.Heading);
        texts.insert(texts.end(), row.Dates.begin(), row.Dates.end());
        texts.insert(texts.end(), row.Flags.begin(), row.Flags.end());
        EXPECT_GE(row.Dates.size(), 2U);
        for (const TimelineBar& bar : row.Bars) {
          if (!bar.Name.isEmpty()) {
            texts.push_back({bar.Name, bar.Box.adjusted(0.01, 0.01, -0.01, -0.01)});
          }
        }
      }
      for (std::size_t a = 0; a < texts.size(); ++a) {
        EXPECT_TRUE(QRectF(QPointF(0, 0), QSizeF(size)).contains(texts[a].Box))
            << size.width() << " " << texts[a].Text.toStdString();
        for (std::size_t b = 0; b < a; ++b) {
          EXPECT_FALSE(texts[a].Box.intersects(texts[b].Box))
              << size.width() << " " << texts[a].Text.toStdString() << " "
              << texts[b].Text.toStdString();
        }
      }
    }
  }
}

TEST_F(DashaTimeline, ThePointerFindsTheBarAndIsToldItsPlanetsDatesAndAges) {
  chart::HoroscopeModel model = Model("1990-07-05 14:30:00");
  chart::SelectPeriod(*session_, model, chart::DashaLevel::Dasha, 1);
  const TimelinePicture picture = Picture(model);
  const TimelineLayout layout = Placed(picture);
  const auto bar = BarAt(layout, layout.Rows[1].Bars[2].Box.center());
  ASSERT_TRUE(bar);
  EXPECT_EQ(bar->Level, 1U);
  EXPECT_EQ(bar->Row, 2U);
  EXPECT_FALSE(BarAt(layout, layout.Rows[1].Heading.Box.center()));
  const core::Table& bhuktis = model.Periods.BhuktiList;
  const std::string planet = bhuktis.At(2, chart::PeriodColumn::Planet).Text;
  const std::string end = bhuktis.At(2, chart::PeriodColumn::EndDate).Text;
  const std::string hint = TimelineHint(picture, *bar).toStdString();
  EXPECT_TRUE(hint.starts_with(
      "Bhukti " + model.Periods.DashaList.At(1, chart::DashaColumn::Planet).Text + " / " + planet))
      << hint;
  EXPECT_NE(hint.find(" to " + end + "\nAge at its beginning: "), std::string::npos) << hint;
  // The first dasha began before birth: no age at its beginning.
  EXPECT_EQ(TimelineHint(picture, {0, 0}).indexOf("beginning"), -1);
}

TEST_F(DashaTimeline, ListsWithoutPeriodsOrOnesThatAreNoneMakeAnEmptyTimeline) {
  const chart::HoroscopeModel whole = Model("1990-07-05 14:30:00");
  chart::HoroscopeModel none = whole;
  none.Periods = {};
  chart::HoroscopeModel broken = whole;
  broken.Periods.DashaList.At(4, chart::DashaColumn::EndDate).Tag = "5 Jul 1990";
  broken.Periods.AntaraList.At(0, chart::PeriodColumn::EndDate).Tag = "no*date";
  for (const chart::HoroscopeModel& model : {none, broken}) {
    const TimelinePicture picture = Picture(model);
    EXPECT_TRUE(picture.Levels[0].Periods.empty());
    EXPECT_TRUE(picture.Levels[2].Periods.empty());
    const TimelineLayout layout = Placed(picture);
    EXPECT_FALSE(layout.Rows[0].Today);
    EXPECT_TRUE(layout.Rows[1].Opening.isEmpty());
    const test::TempFolder folder;
    WriteGraphSvg(
        [&](QPainter& painter, const QRectF& area, Ground ground) {
          PaintTimeline(painter, area, picture, ground, std::nullopt);
        },
        "none", folder.Path() / "none.svg");
    EXPECT_NE(test::ReadFile(folder.Path() / "none.svg").find("no periods"), std::string::npos);
  }
}

TEST_F(DashaTimeline, TodayBeyondThePeriodsHasNoLine) {
  home_.Clock.Set(test::Moment("2400-01-01 00:00:00"));
  const TimelinePicture picture = Picture(Model("1990-07-05 14:30:00"));
  for (const TimelineRow& row : Placed(picture).Rows) {
    EXPECT_FALSE(row.Today);
  }
  EXPECT_FALSE(PeriodHolding(picture.Levels[0], picture.Today));
}

TEST(GraphFiles, TitlesBecomeFileNamesThatEverySystemTakes) {
  EXPECT_EQ(FileNameOf("Timeline - A/B \\ \"C\": <d>?*|\x01"), "Timeline - A-B - -C-- -d----");
}

}  // namespace
}  // namespace orvex::ui
