#include "core/typed_moment.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvex::core {
namespace {

// "" stands for a text that is refused.
struct Case {
  const char* Typed;
  const char* Read;
};

TEST(TypedDate, IsReadAsPeopleWriteItAndNothingIsGuessed) {
  const std::vector<Case> cases = {
      {"5.7.1990", "1990-07-05"},
      {"05-07-1990", "1990-07-05"},
      {"5/7/1990", "1990-07-05"},
      {" 5 7 1990 ", "1990-07-05"},
      {"5. 7. 1990", "1990-07-05"},
      {"5 jul 1990", "1990-07-05"},
      {"5 JULY 1990", "1990-07-05"},
      {"5-Jul-1990", "1990-07-05"},
      {"5jul1990", "1990-07-05"},
      {"July 5, 1990", "1990-07-05"},
      {"1990 jul 5", "1990-07-05"},
      {"5th of july", ""},
      {"5th july 1990", "1990-07-05"},
      {"3 sept 1990", "1990-09-03"},
      {"1990-07-05", "1990-07-05"},
      {"1990/7/5", "1990-07-05"},
      {"05071990", "1990-07-05"},
      {"31121990", "1990-12-31"},
      {"29021992", "1992-02-29"},
      {"29.2.1900", ""},
      {"31.2.1990", ""},
      {"7/13/1990", ""},
      {"1990-13-05", ""},
      {"5.7.90", ""},
      {"5 jul 90", ""},
      {"050790", ""},
      {"5071990", ""},
      {"5.7/1990", ""},
      {"5 ju 1990", ""},
      {"5 xyz 1990", ""},
      {"5.7", ""},
      {"", ""},
      {"5.7.1990.", ""},
      {"-5.7.1990", ""},
      {"0.7.1990", ""},
      {"5.7.19900", ""},
      {"1.1.100", "0100-01-01"},
      {"31 Dec 9999", "9999-12-31"},
      {"31.12.99", ""},
      {"5.7.0099", ""},
      {"15.10.1582", "1582-10-15"},
      {"10.10.1582", "1582-10-10"},
      {"29.2.1500", ""},
  };
  for (const Case& one : cases) {
    const TypedReading<DateTime> reading = ReadTypedDate(one.Typed);
    const std::string read =
        reading.Understood ? StoredDateTimeText(*reading.Understood).substr(0, 10) : "";
    EXPECT_EQ(read, one.Read) << one.Typed;
    EXPECT_FALSE(reading.Words.empty()) << one.Typed;
  }
}

TEST(TypedDate, TellsInWordsWhatWasReadOrWhyNot) {
  const std::vector<Case> cases = {
      {"5.7.1990", "Thursday, 5 July 1990"},
      {"05-07-0719", "Saturday, 5 July 719"},
      {"31.2.1990", "There is no day 31 in February 1990."},
      {"7/13/1990", "There is no month 13: the day comes first."},
      {"5.7.90", "Write the year in full, as in 5.7.1990."},
      {"5 jul 90", "Write the year in full, as in 5.7.1990."},
      {"5.7.0099", "The years go from 100 to 9999."},
      {"soon", "Not a date: write it as 5.7.1990, 5 jul 1990 or 1990-07-05."},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(ReadTypedDate(one.Typed).Words, one.Read) << one.Typed;
  }
}

TEST(TypedTime, IsReadByTheClockOf24HoursUnlessItsHalfIsNamed) {
  const std::vector<Case> cases = {
      {"1430", "02:30:00 PM"},    {"14:30", "02:30:00 PM"},      {"2:30p", "02:30:00 PM"},
      {"2.30 pm", "02:30:00 PM"}, {"14:30:20", "02:30:20 PM"},   {"2:30", "02:30:00 AM"},
      {"230", "02:30:00 AM"},     {"0230", "02:30:00 AM"},       {"143020", "02:30:20 PM"},
      {"14.30", "02:30:00 PM"},   {"14 30", "02:30:00 PM"},      {"12:30 AM", "12:30:00 AM"},
      {"12:30a", "12:30:00 AM"},  {"12:30 P.M.", "12:30:00 PM"}, {"230p", "02:30:00 PM"},
      {"2 pm", "02:00:00 PM"},    {"11:59:59 p", "11:59:59 PM"}, {"00:00", "12:00:00 AM"},
      {"0000", "12:00:00 AM"},    {"23:59:59", "11:59:59 PM"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(ReadTypedTime(one.Typed).Words, one.Read) << one.Typed;
    EXPECT_TRUE(ReadTypedTime(one.Typed).Understood) << one.Typed;
  }
  for (const char* refused :
       {"", "14", "2:3", "24:00", "14:60", "14:30:60", "14:30p", "0:30 am", "13 pm", "14302",
        "2:30x", "14:30.20", ":30", "14:30:", "p", "-2:30", "2:30 a p", "14/30", "12345678"}) {
    EXPECT_FALSE(ReadTypedTime(refused).Understood) << refused;
  }
}

TEST(TypedMoment, AStepMovesThePartAtTheCursor) {
  struct Step {
    const char* Typed;
    std::size_t Cursor;
    int Steps;
    const char* Text;  // "" where nothing moves
    std::size_t Begin;
  };
  for (const Step& step : std::vector<Step>{{"5.7.1990", 1, 1, "6 Jul 1990", 0},
                                            {"5.7.1990", 2, -1, "5 Jun 1990", 2},
                                            {"5.7.1990", 8, 1, "5 Jul 1991", 6},
                                            {"1990-07-05", 0, 1, "5 Jul 1991", 6},
                                            {"05071990", 3, 1, "5 Aug 1990", 2},
                                            {"31 jan 1990", 4, 1, "28 Feb 1990", 3},
                                            {"31.12.1990", 0, 1, "1 Jan 1991", 0},
                                            {"31.12.9999", 0, 1, "", 0},
                                            {"1.1.100", 6, -1, "", 0},
                                            {"31.2.1990", 0, 1, "", 0}}) {
    const std::optional<SteppedText> moved = StepTypedDate(step.Typed, step.Cursor, step.Steps);
    EXPECT_EQ(moved ? moved->Text : "", step.Text) << step.Typed;
    EXPECT_EQ(moved ? moved->Begin : 0, step.Begin) << step.Typed;
  }
  for (const Step& step : std::vector<Step>{{"14:30", 0, 1, "15:30:00", 0},
                                            {"14:59", 5, 1, "15:00:00", 3},
                                            {"14:30:20", 8, -1, "14:30:19", 6},
                                            {"2:30p", 5, -1, "02:30:00", 0},
                                            {"1430", 2, 1, "14:31:00", 3},
                                            {"23:30", 0, 1, "", 0},
                                            {"00:00", 4, -1, "", 0}}) {
    const std::optional<SteppedText> moved =
        StepTypedTime(step.Typed, step.Cursor, step.Steps, true);
    EXPECT_EQ(moved ? moved->Text : "", step.Text) << step.Typed;
    EXPECT_EQ(moved ? moved->Begin : 0, step.Begin) << step.Typed;
  }
  EXPECT_EQ(StepTypedTime("14:30", 4, 1, false)->Text, "14:31");
}

TEST(TypedMoment, FieldsShowWhatTheReadersTakeBack) {
  for (const char* stored : {"0100-01-01 00:00:00", "1990-07-05 14:30:20", "9999-12-31 23:59:59"}) {
    const DateTime moment = ParseDateTime(stored).value();
    EXPECT_EQ(ReadTypedDate(DateFieldText(moment)).Understood, DateOnly(moment));
    EXPECT_EQ(ReadTypedTime(TimeFieldText(TimeOfDayOf(moment))).Understood, TimeOfDayOf(moment));
  }
}

}  // namespace
}  // namespace orvex::core
