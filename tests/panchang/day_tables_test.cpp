#include "panchang/day_tables.h"
#include "core/exact_numbers.h"

#include <gtest/gtest.h>

#include <set>

#include "panchang/clock_text.h"
#include "panchang/kaals.h"
#include "panchang/tithi.h"
#include "support/test_home.h"

namespace orvex::panchang {
namespace {

class DayTables : public ::testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(DayTables, TithiAndKaranFollowTheMoonAheadOfTheSun) {
  struct Case {
    float Moon;
    float Sun;
    const char* Want;
  };
  for (const Case& c : std::initializer_list<Case>{
           {100, 100, "Sukla - Padyami*Kimstughna"},
           {10, 350, "Sukla - Vidiya*Kaulava"},
           {5.99F, 0, "Sukla - Padyami*Kimstughna"},
           {6, 0, "Sukla - Padyami*Bava"},
           {174, 0, "Purnima - Purnima*Bava"},
           {180, 0, "Krishna - Padyami*Balava"},
           {0, 0.01F, "Amavasya - Amavasya*Naga"},
           {5.999995F, 0, "N/A*N/A"},
       }) {
    SCOPED_TRACE(::testing::Message() << c.Moon << " " << c.Sun);
    EXPECT_EQ(c.Want, TithiKaranOf(session_->Reference, c.Moon, c.Sun));
  }
}

TEST(Yoga, ItsDivisorLeavesTheEndOfTheCircleToTheLastYoga) {
  struct Case {
    float A;
    float B;
    const char* Want;
  };
  for (const Case& c : std::initializer_list<Case>{
           {0, 0, ""},
           {0.01F, 0, "Vishakumbha"},
           {13.33F, 0, "Vishakumbha"},
           {13.35F, 0, "Priti"},
           {359.9F, 0, "Vaidhriti"},
           {359.9F, 359.9F, "Vaidhriti"},
           {359.95F, 0, "Vishakumbha"},  // above 27: one round is taken off
           {359.99F, 359.99F, ""},       // 54.012: still above 27 after the round
       }) {
    SCOPED_TRACE(::testing::Message() << c.A << " " << c.B);
    EXPECT_EQ(c.Want, YogaOf(c.A, c.B));
  }
}

TEST(Seasons, EverySignHasASeasonAndAMonthAndAGapHasNone) {
  std::set<std::string> months;
  for (int sign = 0; sign < 12; ++sign) {
    months.insert(MasaOf(30.0 * sign));
    EXPECT_EQ(MasaOf(30.0 * sign), MasaOf(30.0 * sign + 29.99));
    EXPECT_FALSE(RituOf(30.0 * sign).empty());
  }
  EXPECT_EQ(12U, months.size());
  EXPECT_EQ("Vasant", RituOf(359.99));
  EXPECT_EQ("Vasant", RituOf(0));
  EXPECT_EQ("Sharad", RituOf(150));
  for (const double gap : {29.995, 360.0, -0.01}) {
    EXPECT_EQ("", RituOf(gap)) << gap;
    EXPECT_EQ("", MasaOf(gap)) << gap;
  }
}

TEST(VikramSamvat, TheYearChangesOnTheSixteenthOfApril) {
  for (const auto& [date, year] :
       std::initializer_list<std::pair<const char*, int>>{{"2026-01-01", 2082},
                                                          {"2024-02-29", 2080},
                                                          {"2026-04-15", 2082},
                                                          {"2026-04-16", 2083},
                                                          {"2026-12-31", 2083}}) {
    EXPECT_EQ(year, VikramSamvatYear(test::Moment(date))) << date;
  }
}

TEST_F(DayTables, EveryStarAndEveryTithiOfTheStoreHasItsBirdAndItsGanapathi) {
  for (const core::StarRow& star : session_->Reference.Stars) {
    EXPECT_NE("", PanchaPakshiBird(star.StarName, 'S')) << star.StarName;
    EXPECT_NE("", PanchaPakshiBird(star.StarName, 'K')) << star.StarName;
  }
  EXPECT_EQ("Vulture", PanchaPakshiBird("Ashwini", 'S'));
  EXPECT_EQ("Cock", PanchaPakshiBird("Magha", 'K'));
  EXPECT_EQ("Vulture", PanchaPakshiBird("Revati", 'K'));
  EXPECT_EQ("", PanchaPakshiBird("Abhijit", 'S'));

  for (const core::TithiRow& tithi : session_->Reference.Tithis) {
    EXPECT_NE(nullptr, TithiGanapathi(tithi.Tithi)) << tithi.Tithi;
  }
  EXPECT_EQ(nullptr, TithiGanapathi("padyami"));
  EXPECT_EQ(nullptr, TithiGanapathi("N/A"));
}

TEST(Kaals, SlotsAreWholeMinutesWithHalvesToTheEvenOne) {
  struct Case {
    int Slot;
    int DayMinutes;
    const char* Sunrise;
    const char* Want;
  };
  for (const Case& c : std::initializer_list<Case>{
           {8, 720, "6:00 AM", "04:30 PM to 06:00 PM"},
           {1, 720, "6:00 AM", "06:00 AM to 07:30 AM"},
           {2, 660, "6:00 AM", "07:22 AM to 08:44 AM"},  // 82.5 is 82
           {2, 668, "6:00 AM", "07:24 AM to 08:48 AM"},  // 83.5 is 84
           {5, 0, "0:00 AM", "12:00 AM to 12:00 AM"},
       }) {
    EXPECT_EQ(c.Want, KaalText(c.Slot, c.DayMinutes, c.Sunrise)) << c.Slot << " " << c.DayMinutes;
  }
  EXPECT_THROW(KaalText(1, 720, "-12:00 PM"), std::invalid_argument);
}

TEST(Kaals, NoTwoDaysOfAWeekShareASlotAndNoTwoKaalsOfADay) {
  std::set<int> rahu;
  std::set<int> gulika;
  std::set<int> yamaganda;
  for (int day = 0; day < 7; ++day) {
    const KaalRow& row = KaalsOf(test::Moment("2026-11-22") + std::chrono::days(day));
    rahu.insert(row.RahuSlot);
    gulika.insert(row.GulikaSlot);
    yamaganda.insert(row.YamagandaSlot);
    EXPECT_EQ(3U, (std::set<int>{row.RahuSlot, row.GulikaSlot, row.YamagandaSlot}.size())) << day;
  }
  EXPECT_EQ(7U, rahu.size());
  EXPECT_EQ(7U, gulika.size());
  EXPECT_EQ(7U, yamaganda.size());
}

TEST(Muhurtas, TheClockOfTwentyFourHoursCarriesAMarker) {
  const core::DateTime today = test::Moment("2026-11-24");
  EXPECT_EQ("05:27 AM to 06:15 AM", BrahmaMuhurtaText("7:03 AM", today));
  EXPECT_EQ("23:24 PM to 00:12 AM", BrahmaMuhurtaText("1:00 AM", today));
  EXPECT_EQ("12:19 PM to 13:07 PM", AbhijitMuhurtaText("6:43 AM", 720, "Friday"));
  EXPECT_EQ("11:41 AM to 12:27 PM", AbhijitMuhurtaText("6:19 AM", 697, "Monday"));  // 46.47 is 46
  EXPECT_EQ("N/A on Wednesday's", AbhijitMuhurtaText("6:43 AM", 720, "Wednesday"));
}

TEST(ClockTexts, OnlyClockTimesAreRead) {
  for (const auto& [text, minutes] :
       std::initializer_list<std::pair<const char*, int>>{{"0:00 AM", 0},
                                                          {"12:15 AM", 15},
                                                          {"6:21 AM", 381},
                                                          {"12:15 PM", 735},
                                                          {"0:15 PM", 735},
                                                          {"06:49 PM", 1129},
                                                          {"13:05 PM", 785}}) {
    EXPECT_EQ(minutes, MinutesBetween({}, ClockOn({}, text))) << text;
  }
  for (const char* text : {"", "-12:00 PM", "-1:30 PM", "24:00 AM", "6:60 AM", "6:21", "6:21 XM",
                           "6 AM:21", "x:21 AM"}) {
    EXPECT_THROW(ClockOn({}, text), std::invalid_argument) << text;
  }
}

}  // namespace
}  // namespace orvex::panchang
