#include "panchang/hora.h"

#include <gtest/gtest.h>

#include "panchang/current_hora.h"
#include "support/test_home.h"

namespace orvex::panchang {
namespace {

const core::DateTime kTuesday = test::Moment("2026-11-24");

TEST(Horas, ADayBeginsWithItsLordAndANightWithTheFifthAfterIt) {
  struct Case {
    const char* Date;
    const char* DayLord;
    const char* NightLord;
  };
  for (const Case& c : std::initializer_list<Case>{{"2026-11-22", "Sun", "Jupiter"},
                                                   {"2026-11-23", "Moon", "Venus"},
                                                   {"2026-11-24", "Mars", "Saturn"},
                                                   {"2026-11-25", "Mercury", "Sun"},
                                                   {"2026-11-26", "Jupiter", "Moon"},
                                                   {"2026-11-27", "Venus", "Mars"},
                                                   {"2026-11-28", "Saturn", "Mercury"}}) {
    SCOPED_TRACE(c.Date);
    const auto day = DayHorasOf(test::Moment(c.Date), "6:00 AM", "6:00 PM");
    const auto night = NightHorasOf(test::Moment(c.Date), "06:00 PM", "6:00 AM");
    ASSERT_EQ(12U, day.size());
    ASSERT_EQ(12U, night.size());
    EXPECT_EQ(c.DayLord, day.front().Planet);
    EXPECT_EQ(c.NightLord, night.front().Planet);
    EXPECT_EQ(day[0].Planet, day[7].Planet);
    EXPECT_EQ(night[4].Planet, night[11].Planet);
  }
}

TEST(Horas, AHalfMinuteOfTheTwelfthGoesUpAndMovesTheEndOfTheDay) {
  const auto day = DayHorasOf(kTuesday, "6:00 AM", "5:06 PM");  // 55.5 minutes
  EXPECT_EQ(test::Moment("2026-11-24 06:56"), day.front().End);
  EXPECT_EQ(test::Moment("2026-11-24 17:12"), day.back().End);
}

TEST(Horas, AMorningTimeOfTheNightLiesOnTheNextDateEachByItself) {
  const auto night = NightHorasOf(kTuesday, "06:00 PM", "6:12 AM");
  EXPECT_EQ(test::Moment("2026-11-24 23:05"), night[5].Start);
  EXPECT_EQ(test::Moment("2026-11-25 00:06"), night[5].End);
  EXPECT_EQ(test::Moment("2026-11-25 06:12"), night[11].End);
  const auto late = NightHorasOf(kTuesday, "12:30 AM", "6:30 AM");  // a sunset after midnight
  EXPECT_EQ(test::Moment("2026-11-25 00:30"), late[0].Start);
  EXPECT_THROW(DayHorasOf(kTuesday, "0:00 AM", "-12:00 PM"), std::invalid_argument);
}

TEST(Horas, TheNightOfAnotherCityEndsAtTheUserCitysSunrise) {
  test::TestHome home;
  const auto session = home.Start();
  const auto own = CalcHora(*session, kTuesday, session->State.UserCityId);
  const auto other = CalcHora(*session, kTuesday, 1);
  ASSERT_TRUE(own && other);
  EXPECT_EQ("Hora for Dubai", own->Title);
  EXPECT_NE(own->Sunrise, other->Sunrise);
  const std::string left = session->State.SunriseText;
  CalcHora(*session, kTuesday, session->State.UserCityId);
  EXPECT_EQ(left, session->State.SunriseText);
  EXPECT_FALSE(CalcHora(*session, kTuesday, -1));
}

class CurrentHora : public ::testing::Test {
 protected:
  // The hora at a moment of a day from 6:38 AM in Dubai, where the texts stand as the sky view
  // leaves them.
  std::string At(const std::string& moment) {
    SkyView view;
    GetHeaderDetails(*session_, view, test::Moment(moment));
    return view.Captions.CurrentHora;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(CurrentHora, AtASharedBorderTheLaterHoraWinsAndTheNightBeatsTheDay) {
  SkyView view;
  GetHeaderDetails(*session_, view, test::Moment("2026-11-24 12:00"));
  const core::Table day = view.DayHoras;
  const core::Table night = view.NightHoras;
  GetHeaderDetails(*session_, view, test::Moment(day.At(3, HoraColumn::End).Tag));
  EXPECT_EQ(day.At(4, HoraColumn::Planet).Text, view.Captions.CurrentHoraPlanet);
  GetHeaderDetails(*session_, view, test::Moment(day.At(11, HoraColumn::End).Tag));
  EXPECT_EQ(night.At(0, HoraColumn::Planet).Text, view.Captions.CurrentHoraPlanet);
}

TEST_F(CurrentHora, BeforeSunriseThePreviousNightHoldsTheHoraAndYesterdaysSunTimesAreLeft) {
  SkyView view;
  GetHeaderDetails(*session_, view, test::Moment("2026-11-24 03:00"));
  SkyView yesterday;
  GetHeaderDetails(*session_, yesterday, test::Moment("2026-11-23 12:00"));
  const std::string hora = view.Captions.CurrentHora;
  EXPECT_NE(std::string::npos, hora.find(" AM to ")) << hora;
  bool ofYesterdaysNight = false;
  for (std::size_t row = 0; row < yesterday.NightHoras.Rows.size(); ++row) {
    ofYesterdaysNight |=
        yesterday.NightHoras.At(row, HoraColumn::Planet).Text == view.Captions.CurrentHoraPlanet &&
        yesterday.NightHoras.At(row, HoraColumn::Start).Tag <= "2026-11-24 03:01:00" &&
        yesterday.NightHoras.At(row, HoraColumn::End).Tag >= "2026-11-24 02:59:00";
  }
  EXPECT_TRUE(ofYesterdaysNight);
}

TEST(RunningHora, OfTwoThatTouchTheLaterOneRuns) {
  const core::Table horas =
      HoraTable(DayHorasOf(test::Moment("2026-11-24"), "6:00 AM", "06:00 PM"));
  for (const auto& [now, row] :
       std::initializer_list<std::pair<const char*, int>>{{"2026-11-24 05:59:59", -1},
                                                          {"2026-11-24 06:00:00", 0},
                                                          {"2026-11-24 06:59:59", 0},
                                                          {"2026-11-24 07:00:00", 1},
                                                          {"2026-11-24 18:00:00", 11},
                                                          {"2026-11-24 18:00:01", -1},
                                                          {"2026-11-25 09:00:00", -1}}) {
    const auto running = RunningHora(horas, test::Moment(now));
    EXPECT_EQ(running ? static_cast<int>(*running) : -1, row) << now;
  }
  EXPECT_FALSE(RunningHora(core::Table{}, test::Moment("2026-11-24 09:00:00")));
}

TEST_F(CurrentHora, WithoutASunriseTheLabelsOfTheHoraStayAsTheyWere) {
  SkyView view;
  GetHeaderDetails(*session_, view, test::Moment("2026-06-21 12:00"));
  const std::string before = view.Captions.CurrentHora;
  session_->State.UserCityLatitude = 80;
  GetHeaderDetails(*session_, view, test::Moment("2026-06-21 15:00"));
  EXPECT_EQ(before, view.Captions.CurrentHora);
  EXPECT_EQ(0, view.DayMinutes);
  EXPECT_TRUE(view.DayHoras.Rows.empty());
  EXPECT_EQ("12:00 AM to 12:00 AM", view.Panchang.At(4, PanchangColumn::Value1).Text);
}

}  // namespace
}  // namespace orvex::panchang
