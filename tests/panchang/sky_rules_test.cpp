// Rules of the sky that show on certain days: full moon, the hours before sunrise, each weekday.
#include <gtest/gtest.h>

#include "core/text.h"
#include "panchang/hora.h"
#include "panchang/sky_planets.h"
#include "panchang/sky_view.h"
#include "support/test_home.h"

namespace orvex::panchang {
namespace {

class SkyRules : public testing::Test {
 protected:
  SkyView At(const std::string& moment) {
    SkyView view;
    GetHeaderDetails(*session_, view, test::Moment(moment));
    return view;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// Dubai; the Moon was full on 24 November 2026 at 14:53 UT and new on 9 December at 00:52 UT.
TEST_F(SkyRules, TheDaysOfFullAndNewMoonHaveTheirStatusAndBird) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"2026-11-24 12:00", "Purnima", "Moon Status: Waxing"},
      {"2026-11-26 12:00", "Krishna", "Moon Status: Waning"},
      {"2026-12-08 20:00", "Amavasya", "Moon Status: Waning"},
      {"2026-12-10 20:00", "Sukla", "Moon Status: Waxing"}};
  for (const auto& [moment, half, status] : cases) {
    const SkyView view = At(moment);
    EXPECT_TRUE(view.Captions.Tithi.starts_with(half)) << view.Captions.Tithi;
    EXPECT_EQ(view.Captions.MoonStatus, status) << moment;
    EXPECT_FALSE(view.Captions.PanchaPakshi.empty()) << moment;
    EXPECT_FALSE(view.Captions.Ganapathi.empty()) << moment;
  }
}

TEST_F(SkyRules, EachWeekdayHasItsColour) {
  const std::pair<const char*, const char*> colors[] = {
      {"White", "255, 255, 255"}, {"Green", "183, 218, 127"}, {"Yellow", "254, 250, 133"},
      {"Blue", "95, 181, 212"},   {"Green", "183, 218, 127"}, {"Yellow", "254, 250, 133"},
      {"Blue", "95, 181, 212"}};
  for (int day = 0; day < 7; ++day) {
    SkyView view;
    GetHeaderDetails(*session_, view,
                     test::Moment("2026-11-22 12:00") + std::chrono::days(day));  // a Sunday
    EXPECT_EQ(view.Captions.DishaShool,
              std::string("Disha Shool Color: ") + colors[day].first + " ");
    EXPECT_EQ(view.Captions.DishaShoolColor, colors[day].second) << day;
  }
}

// The night before ends at the sunrise that comes, not at the one that has been.
TEST_F(SkyRules, BeforeSunriseTheHoraIsOfTheNightFromYesterdaysSunsetToTodaysSunrise) {
  for (int day = 0; day < 40; ++day) {
    const core::DateTime date = test::Moment("2026-09-20") + std::chrono::days(day);
    const core::DateTime yesterday = date - std::chrono::days(1);
    const core::DateTime now = date + std::chrono::hours(5);
    const std::int32_t city = session_->State.UserCityId;
    const std::string sunrise = CalcHora(*session_, date, city)->Sunrise;
    SkyView view;
    GetHeaderDetails(*session_, view, now);
    const std::string sunset = session_->State.SunsetText;  // yesterday's is left
    std::string wanted;
    for (const Hora& hora : NightHorasOf(yesterday, sunset, sunrise)) {
      if (hora.Start <= now && now <= hora.End) {
        wanted =
            hora.Planet + " - " + core::TimeAmPm(hora.Start) + " to " + core::TimeAmPm(hora.End);
      }
    }
    EXPECT_EQ(view.Captions.CurrentHora, wanted) << core::StoredDateTimeText(date);
  }
}

TEST(SkyMars, ItsOwnWindowHoldsAtBothBordersAndWhereTheLowerOneCrossesZero) {
  struct {
    const char* sun;
    const char* degree;
    bool combust;
  } const cases[] = {{"5.00", "0.00", true},     {"5.00", "22.00", true},
                     {"5.00", "22.01", false},   {"16.00", "0.00", true},
                     {"100.00", "83.00", true},  {"100.00", "82.99", false},
                     {"100.00", "117.00", true}, {"100.00", "117.01", false}};
  for (const auto& c : cases) {
    const core::ReferenceData none;
    core::Table planets = EmptySkyPlanets();
    AddSkyPlanet(none, planets, "Sun", false, 0, c.sun);
    AddSkyPlanet(none, planets, "Mars", false, 0, c.degree);
    CheckCombustion(planets);
    EXPECT_EQ(planets.At(1, SkyPlanetColumn::C).Text == "C", c.combust) << c.sun << " " << c.degree;
  }
}

}  // namespace
}  // namespace orvex::panchang
