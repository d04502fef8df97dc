#include "core/date_text.h"

#include <gtest/gtest.h>

namespace orvex::core {
namespace {

DateTime At(const std::string& text) { return ParseDateTime(text).value(); }

TEST(DateText, EveryDayOfAllYearsSurvivesEachTextForm) {
  DateTime day = At("0100-01-01");
  const DateTime last = At("9999-12-31");
  int weekday = WeekdayNumber(day);
  for (; day < last; day += std::chrono::days(1), weekday = weekday % 7 + 1) {
    ASSERT_EQ(WeekdayNumber(day), weekday);
    const std::string text = LongDateText(day, true);
    ASSERT_EQ(ParseLongDateText(text), day) << text;
    if (PartsOf(day).Day % 9 == 0) {
      const std::string literal = DateLiteral(day);
      ASSERT_EQ(ParseDateTime(StoredDateTimeText(day)), day);
      ASSERT_EQ(ParseDateLiteral(std::string_view(literal).substr(1, literal.size() - 2)), day);
    }
  }
}

TEST(DateText, NonsenseIsNoDate) {
  for (const char* text :
       {"", "x", "1990", "1990-13-01", "1990-02-30", "1900-02-29", "0099-12-31", "10000-01-01",
        "1990-7-5 24:00", "1990-07-05 14:60", "1990-07-05 14", "1990-07-05 14:30:60", "1990-07-05 ",
        "1990/07/05", "-990-07-05", "1990-07-05 14:30 PM", "1990-07-0x"}) {
    EXPECT_FALSE(ParseDateTime(text)) << text;
  }
  for (const char* text : {"5 7 1990", "5 July", "31 Feb 2000", "5 Juli 1990", "5  Jul 1990"}) {
    EXPECT_FALSE(ParseLongDateText(text)) << text;
  }
}

TEST(DateText, EachFormReadsAsItShould) {
  const DateTime moment = At("1990-07-05 14:30:09");
  EXPECT_EQ(LongDateText(moment, false), "5 July 1990");
  EXPECT_EQ(LongDateText(moment, true), "5 Jul 1990");
  EXPECT_EQ(ShortDateText(moment), "7/5/1990");
  EXPECT_EQ(TimeAmPm(moment), "02:30 PM");
  EXPECT_EQ(TimeSecondsAmPm(moment), "02:30:09 PM");
  EXPECT_EQ(ShortTimeText(moment), "14:30");
  EXPECT_EQ(DateLiteral(moment), "#07/05/1990 14:30:09#");
  EXPECT_EQ(WeekdayName(moment), "Thursday");
  EXPECT_EQ(TimeAmPm(At("1990-07-05 00:05")), "12:05 AM");
  EXPECT_EQ(TimeAmPm(At("1990-07-05 12:00")), "12:00 PM");
}

TEST(DateText, LiteralsKnowBothClocks) {
  const std::pair<const char*, const char*> cases[] = {
      {"07/05/1990", "1990-07-05 00:00:00"},
      {"7/5/1990 2:30:00 PM", "1990-07-05 14:30:00"},
      {"07/05/1990 12:00:00 AM", "1990-07-05 00:00:00"},
      {"07/05/1990 12:01 pm", "1990-07-05 12:01:00"},
      {"12/31/9999 23:59:59", "9999-12-31 23:59:59"}};
  for (const auto& [literal, stored] : cases) {
    ASSERT_TRUE(ParseDateLiteral(literal)) << literal;
    EXPECT_EQ(StoredDateTimeText(*ParseDateLiteral(literal)), stored);
  }
  for (const char* literal : {"", "13/01/1990", "07/05/1990 13:00 PM", "07/05/1990 0:30 AM",
                              "07/05/90x", "1990-07-05", "07/05/1990 10:00 XM"}) {
    EXPECT_FALSE(ParseDateLiteral(literal)) << literal;
  }
}

TEST(DateText, CalendarArithmeticKeepsTheDayOrTakesTheLastOfTheMonth) {
  struct {
    const char* from;
    DateInterval interval;
    int count;
    const char* to;
  } const cases[] = {
      {"2024-01-31 10:15:20", DateInterval::Months, 1, "2024-02-29 10:15:20"},
      {"2023-01-31", DateInterval::Months, 1, "2023-02-28 00:00:00"},
      {"2024-02-29", DateInterval::Years, 1, "2025-02-28 00:00:00"},
      {"2024-02-29", DateInterval::Years, 4, "2028-02-29 00:00:00"},
      {"2024-03-31", DateInterval::Months, -1, "2024-02-29 00:00:00"},
      {"2024-12-15", DateInterval::Months, 14, "2026-02-15 00:00:00"},
      {"1999-12-31 23:59", DateInterval::Minutes, 1, "2000-01-01 00:00:00"},
      {"1900-02-28", DateInterval::Days, 1, "1900-03-01 00:00:00"},
      {"1582-10-04", DateInterval::Days, 1, "1582-10-05 00:00:00"},
      {"2000-01-01", DateInterval::Hours, -25, "1999-12-30 23:00:00"},
      {"2000-01-01", DateInterval::Seconds, -1, "1999-12-31 23:59:59"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(StoredDateTimeText(DateAdd(c.interval, c.count, At(c.from))), c.to);
  }
  EXPECT_THROW(DateAdd(DateInterval::Years, 10, At("9995-01-01")), DateRangeError);
  EXPECT_THROW(DateAdd(DateInterval::Days, -1, At("0100-01-01")), DateRangeError);
  EXPECT_THROW(DateAdd(DateInterval::Months, INT64_MAX, At("2000-01-01")), DateRangeError);
  EXPECT_THROW(DateAdd(DateInterval::Days, INT64_MIN, At("2000-01-01")), DateRangeError);
}

TEST(DateText, AgesFollowTheirRoundedSteps) {
  struct {
    const char* from;
    const char* to;
    const char* text;
    int years;
  } const cases[] = {
      {"2000-01-01", "2000-01-01", "0 Year(s), 0 Month(s), 0 Day(s)", 0},
      {"2000-01-01", "2000-01-31", "0 Year(s), 0 Month(s), 30 Day(s)", 0},
      {"2000-01-01", "2000-02-01", "0 Year(s), 1 Month(s), 1 Day(s)", 0},
      {"2001-01-01", "2002-01-01", "1 Year(s), 0 Month(s), 0 Day(s)", 0},
      {"2000-01-01", "2001-01-01", "1 Year(s), 0 Month(s), 1 Day(s)", 1},
      {"2000-01-01", "2004-01-01", "4 Year(s), 0 Month(s), 0 Day(s)", 4},
      {"1985-09-05", "2026-11-24", "41 Year(s), 2 Month(s), 19 Day(s)", 41},
      {"2000-01-01", "2000-12-01", "0 Year(s), 11 Month(s), 0 Day(s)", 0},
  };
  for (const auto& c : cases) {
    const Age age = AgeText(At(c.from), At(c.to));
    EXPECT_EQ(age.Text, c.text) << c.from << " " << c.to;
    EXPECT_EQ(age.Years, c.years);
  }
}

TEST(DateText, MonthsAndOrdinals) {
  EXPECT_EQ(MonthNumber("January"), 1);
  EXPECT_EQ(MonthNumber("December"), 12);
  EXPECT_EQ(MonthNumber("Dec"), 0);
  EXPECT_EQ(MonthNumberText("September"), "09");
  EXPECT_EQ(MonthNumberText("Oct"), "10");
  EXPECT_THROW(MonthNumberText("Octember"), std::invalid_argument);
  const std::pair<int, const char*> ordinals[] = {{0, ""},   {1, "st"},  {2, "nd"},  {3, "rd"},
                                                  {4, "th"}, {11, "th"}, {12, "th"}, {13, ""},
                                                  {21, ""},  {-1, ""}};
  for (const auto& [number, suffix] : ordinals) {
    EXPECT_EQ(OrdinalSuffix(number), suffix) << number;
  }
}

}  // namespace
}  // namespace orvex::core
