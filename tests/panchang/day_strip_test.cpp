#include "panchang/day_strip.h"

#include <gtest/gtest.h>

#include "panchang/hora.h"
#include "support/test_home.h"

namespace orvex::panchang {
namespace {

constexpr double kNear = 1e-9;

// A day of twelve hours from six to six, so that an hour is a twelfth of the line.
SkyView View(const std::string& rahu, const std::string& gulika) {
  SkyView view;
  view.DayHoras = HoraTable(DayHorasOf(test::Moment("2026-11-24"), "6:00 AM", "06:00 PM"));
  view.Panchang = {{{""}, {""}, {""}, {""}}, {}};
  view.Panchang.Rows.push_back({{{"Rahu Kaal"}, {rahu}, {"Gulika Kaal"}, {gulika}}});
  return view;
}

TEST(DayStrip, HorasKaalsAndNowStandWhereTheirTimesLie) {
  const DayStrip strip = DayStripOf(View("03:00 PM to 04:30 PM", "09:00 AM to 10:30 AM"),
                                    test::Moment("2026-11-24 09:30:00"));
  EXPECT_EQ(strip.Begin + " " + strip.End, "06:00 AM 06:00 PM");
  ASSERT_EQ(strip.Horas.size(), 12U);
  EXPECT_EQ(strip.Horas[0].Name, "Mars");  // a Tuesday
  EXPECT_NEAR(strip.Horas[0].From, 0, kNear);
  EXPECT_NEAR(strip.Horas[3].From, 0.25, kNear);
  EXPECT_NEAR(strip.Horas[11].To, 1, kNear);
  EXPECT_EQ(strip.Horas[3].Times, "09:00 AM to 10:00 AM");
  ASSERT_TRUE(strip.Now);
  EXPECT_NEAR(*strip.Now, 3.5 / 12, kNear);
  ASSERT_EQ(strip.Kaals.size(), 2U);
  EXPECT_EQ(strip.Kaals[0].Name, "Gulika");
  EXPECT_NEAR(strip.Kaals[0].From, 0.25, kNear);
  EXPECT_EQ(strip.Kaals[1].Name, "Rahu Kaal");
  EXPECT_NEAR(strip.Kaals[1].To, 10.5 / 12, kNear);
}

TEST(DayStrip, NowStandsOnTheLineByDayAlone) {
  for (const auto& [now, stands] :
       std::initializer_list<std::pair<const char*, bool>>{{"2026-11-24 05:59:59", false},
                                                           {"2026-11-24 06:00:00", true},
                                                           {"2026-11-24 18:00:00", true},
                                                           {"2026-11-24 18:00:01", false}}) {
    EXPECT_EQ(DayStripOf(View("", ""), test::Moment(now)).Now.has_value(), stands) << now;
  }
}

TEST(DayStrip, KaalsAreCutAtItsEndsAndLeftOutWhereTheyAreNone) {
  struct Case {
    const char* Times;
    std::size_t Kaals;
    double From;
    double To;
  };
  for (const Case& one : std::initializer_list<Case>{{"05:00 AM to 07:30 AM", 1, 0, 0.125},
                                                     {"05:00 PM to 07:00 PM", 1, 11.0 / 12, 1},
                                                     {"04:00 AM to 05:30 AM", 0, 0, 0},
                                                     {"06:30 PM to 08:00 PM", 0, 0, 0},
                                                     {"09:00 AM to 09:00 AM", 0, 0, 0},
                                                     {"N/A", 0, 0, 0},
                                                     {"", 0, 0, 0},
                                                     {"soon to late", 0, 0, 0}}) {
    const DayStrip strip = DayStripOf(View(one.Times, ""), test::Moment("2026-11-24 09:30:00"));
    ASSERT_EQ(strip.Kaals.size(), one.Kaals) << one.Times;
    if (one.Kaals > 0) {
      EXPECT_NEAR(strip.Kaals[0].From, one.From, kNear) << one.Times;
      EXPECT_NEAR(strip.Kaals[0].To, one.To, kNear) << one.Times;
    }
  }
  EXPECT_TRUE(DayStripOf(SkyView{}, test::Moment("2026-11-24 09:30:00")).Horas.empty());
}

}  // namespace
}  // namespace orvex::panchang
