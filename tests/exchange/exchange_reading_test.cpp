// What the readers of the exchange files make of single fields, lines and files.
#include <gtest/gtest.h>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "exchange/aaf_fields.h"
#include "exchange/aaf_reading.h"
#include "exchange/jhd_reading.h"
#include "exchange/mtx_reading.h"
#include "support/test_home.h"

namespace orvex::exchange {
namespace {

std::string MomentText(const std::optional<core::DateTime>& moment) {
  return moment ? core::StoredDateTimeText(*moment) : "";
}

std::string HoursText(const std::optional<double>& hours) {
  return hours ? core::FixedText(*hours, 5) : "";
}

TEST(AafFields, DatesAreReadByTheirCalendar) {
  const std::pair<const char*, const char*> dates[] = {{"5.7.1990", "1990-07-05 00:00:00"},
                                                       {"05.07.1990", "1990-07-05 00:00:00"},
                                                       {"5.7.1990g", "1990-07-05 00:00:00"},
                                                       {"22.6.1990j", "1990-07-05 00:00:00"},
                                                       {"4.10.1582", "1582-10-14 00:00:00"},
                                                       {"15.10.1582", "1582-10-15 00:00:00"},
                                                       {"4.10.1582G", "1582-10-04 00:00:00"},
                                                       {"29.2.1500", "1500-03-10 00:00:00"},
                                                       {"29.2.1500g", ""},
                                                       {"29.2.1900", ""},
                                                       {"29.2.1900j", "1900-03-13 00:00:00"},
                                                       {"1.1.100g", "0100-01-01 00:00:00"},
                                                       {"1.1.100j", ""},
                                                       {"5.7.90", ""},
                                                       {"5.7.-990", ""},
                                                       {"31.4.1990", ""},
                                                       {"5.13.1990", ""},
                                                       {"5/7/1990", ""},
                                                       {"5.7.1990x", ""},
                                                       {"5.7.19900", ""},
                                                       {"5.7", ""},
                                                       {"", ""}};
  for (const auto& [text, read] : dates) {
    EXPECT_EQ(MomentText(ReadAafDate(text)), read) << text;
  }
}

TEST(AafFields, TimesZonesAndSummerTime) {
  const std::pair<const char*, const char*> times[] = {
      {"0:00", "0.00000"}, {"14:30", "14.50000"}, {"9:05:36", "9.09333"}, {"23:59:59", "23.99972"},
      {"24:00", ""},       {"14:60", ""},         {"14:30:60", ""},       {"14", ""},
      {"14:3", ""},        {"-1:30", ""},         {"14:30:", ""},         {"14:30:00:00", ""},
      {"2:30 pm", ""}};
  for (const auto& [text, hours] : times) {
    const auto time = ReadAafTime(text);
    EXPECT_EQ(time ? core::FixedText(static_cast<double>(time->count()) / 3600, 5) : "", hours)
        << text;
  }
  const std::pair<const char*, const char*> zones[] = {
      {"1hE00", "1.00000"},    {"5he30", "5.50000"}, {"3HW30", "-3.50000"}, {"0hW00", "0.00000"},
      {"0hE34:08", "0.56889"}, {"1h00", ""},         {"1hE", ""},           {"hE00", ""},
      {"1hE60", ""},           {"1hN00", ""},        {"1E00", ""},          {"1hE00:60", ""}};
  for (const auto& [text, hours] : zones) {
    EXPECT_EQ(HoursText(ReadAafZone(text)), hours) << text;
  }
  const std::pair<const char*, const char*> summers[] = {
      {"0", "0.00000"}, {"1", "1.00000"}, {"2", "2.00000"}, {"0.5", "0.50000"},
      {"-1", ""},       {"4", ""},        {"0.3", ""},      {"S", ""}};
  for (const auto& [text, hours] : summers) {
    EXPECT_EQ(HoursText(ReadAafSummer(text)), hours) << text;
  }
}

TEST(AafFields, AJulianDayIsAMomentInUtAsFarAsItsDecimalsReach) {
  struct Case {
    const char* Text;
    const char* Ut;  // "" where it is refused
    int Open;
  };
  for (const Case& one : std::vector<Case>{{"2451545", "2000-01-01 12:00:00", 0},
                                           {"2451544.5", "2000-01-01 00:00:00", 0},
                                           {"2448077.875", "1990-07-05 09:00:00", 44},
                                           {"2448077.8752", "1990-07-05 09:00:17", 5},
                                           {"2448077.87523", "1990-07-05 09:00:20", 0},
                                           {"1757582.5", "", 0},
                                           {"1e6", "", 0},
                                           {"-2448077.5", "", 0},
                                           {"99999999", "", 0}}) {
    const std::optional<JulianMoment> read = ReadAafJulianDay(one.Text);
    EXPECT_EQ(read ? core::StoredDateTimeText(read->Ut) : "", one.Ut) << one.Text;
    EXPECT_EQ(read ? read->SecondsOpen : 0, one.Open) << one.Text;
  }
}

TEST(AafFields, WhatIsWrittenIsReadTheSame) {
  for (const char* text : {"1990-07-05 14:30:00", "1582-10-14 00:00:00", "1582-10-15 23:59:59",
                           "0100-01-01 00:00:01", "9999-12-30 12:00:00"}) {
    const core::DateTime moment = test::Moment(text);
    EXPECT_EQ(ReadAafDate(AafDate(moment)), core::DateOnly(moment)) << text;
    EXPECT_EQ(ReadAafTime(AafTime(moment)), core::TimeOfDayOf(moment)) << text;
    EXPECT_EQ(ReadAafJulianDay(AafJulianDay(moment))->Ut, moment) << text;
  }
  for (const auto& [hours, text] : {std::pair(5.5, "5hE30"), std::pair(-3.5, "3hW30"),
                                    std::pair(0.0, "0hE00"), std::pair(0.5689, "0hE34:08")}) {
    EXPECT_EQ(AafZone(hours), text);
  }
  EXPECT_EQ(AafLatitude(-33.86667), "33S52");
  EXPECT_EQ(AafLatitude(18.51957), "18N31:10");
  EXPECT_EQ(AafLongitude(-0.12574), "0W07:33");
  EXPECT_EQ(AafLongitude(179.99999), "180E00");
  EXPECT_EQ(AafLatitude(90.01), "*");
  EXPECT_EQ(AafText(" Smith, John\r\n\x01 "), "Smith; John");
  EXPECT_EQ(AafText(" "), "*");
  EXPECT_EQ(AafText("*"), "**");
}

TEST(Aaf, AFileOfTwoBirthsInEitherEncoding) {
  const std::string head =
      "\xEF\xBB\xBF#: a head\r\n#COM:before any birth\r\n"
      "#a93:M\xC3\xBCller,Zo\xC3\xAB,w,5.7.1990,14:30,Z\xC3\xBCrich,CH\r\n"
      "#B93:2448078.02083,47N23,8E33,1hE00,1\r\n#ZNAM: Europe/Zurich \r\n"
      "#COM:first\r\nsecond\r\n\r\n#COM: third\r\n#XTRA:passed over\r\n";
  const FileReading reading =
      ReadAaf(head + "#A93:S\xE3o Jo\xE3o,*,*,*,*,*,*\n" + "#B93:2448078,23S33:01,46W38,*,*\x1A");
  ASSERT_EQ(reading.Births.size(), 2U);
  EXPECT_TRUE(reading.Refused.empty());
  const FileBirth& first = reading.Births[0];
  EXPECT_EQ(first.Line, 3U);
  EXPECT_EQ(first.Name, "Zo\xC3\xAB M\xC3\xBCller");
  EXPECT_EQ(first.Gender, "F");
  EXPECT_EQ(first.Place, "Z\xC3\xBCrich");
  EXPECT_EQ(first.Country, "CH");
  EXPECT_EQ(first.Comments, "first\nsecond\n third");
  EXPECT_EQ(first.ZoneName, "Europe/Zurich");
  EXPECT_EQ(MomentText(first.Local), "1990-07-05 14:30:00");
  EXPECT_EQ(first.Latitude, "47.38333");
  EXPECT_EQ(first.Longitude, "8.55");
  EXPECT_EQ(HoursText(first.ZoneHours) + HoursText(first.SummerHours), "1.000001.00000");
  const FileBirth& second = reading.Births[1];
  EXPECT_EQ(second.Name, "S\xC3\xA3o Jo\xC3\xA3o");
  EXPECT_EQ(second.Gender, "O");
  EXPECT_EQ(MomentText(second.Julian->Ut), "1990-07-05 12:00:00");
  EXPECT_FALSE(second.Local || second.ZoneHours || second.SummerHours);
  EXPECT_EQ(second.Latitude + second.Longitude, "-23.55028-46.63333");
}

TEST(Aaf, EachLineThatIsNoneIsRefusedWithItsNumberAndItsBirth) {
  const std::string good = "#A93:A,*,m,5.7.1990,14:30,Pune,IN";
  const std::string place = "#B93:*,18N31,73E51,5hE30,0";
  struct Case {
    std::string Text;
    std::size_t Line;
    const char* Reason;
  };
  const std::vector<Case> cases = {
      {"nonsense\n", 1, "begins with no tag"},
      {good + "\n" + place + "\nnonsense", 3, "begins with no tag"},
      {"#A93\n", 1, "begins with no tag"},
      {place, 1, "no #A93 line of its own"},
      {good + "\n" + place + "\n" + place, 3, "no #A93 line of its own"},
      {"#A93:A,*,m,5.7.1990,14:30,Pune", 1, "6 fields, not 7"},
      {"#A93:A,*,m,5.7.1990,14:30,Pune,IN,x", 1, "8 fields, not 7"},
      {"#A93:A,*,x,5.7.1990,14:30,Pune,IN", 1, "sex: \"x\""},
      {"#A93:A,*,m,31.6.1990,14:30,Pune,IN", 1, "date: \"31.6.1990\""},
      {"#A93:A,*,m,5.7.1990,25:30,Pune,IN", 1, "time: \"25:30\""},
      {"#A93:A,*,m,5.7.1990,*,Pune,IN", 1, "neither a date with a time nor a Julian day"},
      {"#A93:A\x01,*,m,5.7.1990,14:30,Pune,IN", 1, "control character"},
      {good + "\n#COM:\x1B[2J", 2, "control character"},
      {good + "\n#COM:a\xC2\x9B"
              "2J",
       2, "control character"},
      {good + "\n#B93:*,18N31,73E51,5hE30", 2, "4 fields, not 5"},
      {good + "\n#B93:*,91N00,73E51,5hE30,0", 2, "latitude: \"91N00\""},
      {good + "\n#B93:*,18E31,73E51,5hE30,0", 2, "latitude: \"18E31\""},
      {good + "\n#B93:*,18N31,181E00,5hE30,0", 2, "longitude: \"181E00\""},
      {good + "\n#B93:*,18N31,73N51,5hE30,0", 2, "longitude: \"73N51\""},
      {good + "\n#B93:*,18N31,73E51,5.5,0", 2, "zone: \"5.5\""},
      {good + "\n#B93:*,18N31,73E51,5hE30,9", 2, "summer time: \"9\""},
      {good + "\n#B93:0,18N31,73E51,5hE30,0", 2, "Julian day: \"0\""}};
  for (const Case& one : cases) {
    const FileReading reading = ReadAaf(one.Text + "\n" + good + "\n" + place);
    ASSERT_EQ(reading.Refused.size(), 1U) << one.Text;
    EXPECT_EQ(reading.Refused[0].Line, one.Line) << one.Text;
    EXPECT_NE(reading.Refused[0].Reason.find(one.Reason), std::string::npos)
        << one.Text << ": " << reading.Refused[0].Reason;
    EXPECT_EQ(reading.Births.size(), 1U) << one.Text;  // the good one behind it
  }
}

TEST(Jhd, MinutesAndSecondsStandBehindThePoint) {
  const std::pair<const char*, const char*> numbers[] = {{"14.300000", "14.50000"},
                                                         {"-5.3", "-5.50000"},
                                                         {"5.05", "5.08333"},
                                                         {"14.3045", "14.51250"},
                                                         {"-0.300000", "-0.50000"},
                                                         {"73", "73.00000"},
                                                         {"+5.3", "5.50000"},
                                                         {"5.2999999999", "5.50000"},
                                                         {"14.295950", "14.49986"},
                                                         {"5.6", ""},
                                                         {"5.3061", ""},
                                                         {"5.75", ""},
                                                         {"5,3", ""},
                                                         {"1e1", ""},
                                                         {"", ""}};
  for (const auto& [text, value] : numbers) {
    EXPECT_EQ(HoursText(ReadMinutesBehindPoint(text)), value) << text;
  }
}

std::string JhdText(std::vector<std::string> lines) { return core::Join(lines, "\r\n") + "\r\n"; }

std::vector<std::string> GoodJhd() {
  return {"7",         "5",        "1990",      "14.302030", "-5.300000", "-73.510000",
          "18.311000", "0.000000", "-5.500000", "-5.500000", "0",         "105",
          "Pun\xE9",   "India",    "1",         "1013.25",   "20.000000", "2"};
}

TEST(Jhd, WestIsPositiveAndThePlaceStandsOnLine13) {
  const FileReading reading = ReadJhd(JhdText(GoodJhd()), "Ravi Kumar");
  ASSERT_EQ(reading.Births.size(), 1U);
  const FileBirth& birth = reading.Births[0];
  EXPECT_EQ(birth.Name, "Ravi Kumar");
  EXPECT_EQ(MomentText(birth.Local), "1990-07-05 14:30:20");
  EXPECT_EQ(HoursText(birth.ZoneHours) + HoursText(birth.SummerHours), "5.500000.00000");
  EXPECT_EQ(birth.Longitude, "73.85");
  EXPECT_EQ(birth.Latitude, "18.51944");
  EXPECT_EQ(birth.Place + "/" + birth.Country, "Pun\xC3\xA9/India");
  std::vector<std::string> southWest = GoodJhd();
  southWest[4] = "3.3";
  southWest[5] = "46.38";
  southWest[6] = "-23.33";
  southWest.resize(7);  // the lines behind the latitude may be missing
  const FileBirth other = ReadMtx(JhdText(southWest), "B").Births.at(0);
  EXPECT_EQ(other.Longitude + other.Latitude + other.Place, "-46.63333-23.55");
  EXPECT_EQ(HoursText(other.ZoneHours), "-3.50000");
}

TEST(Jhd, WhatIsNoBirthIsRefusedWithItsLine) {
  struct Case {
    std::size_t Line;
    const char* Text;
    const char* Reason;
  };
  for (const Case& one : std::vector<Case>{{1, "13", "no date"},
                                           {2, "x", "day: \"x\""},
                                           {3, "-44", "year: \"-44\""},
                                           {3, "1582", "by which calendar"},
                                           {4, "24.00", "time: \"24.00\""},
                                           {4, "-1.00", "time: \"-1.00\""},
                                           {4, "14.75", "time: \"14.75\""},
                                           {5, "five", "time zone: \"five\""},
                                           {6, "180.01", "longitude: \"180.01\""},
                                           {7, "-90.3", "latitude: \"-90.3\""},
                                           {13, "a\x02", "control character"}}) {
    std::vector<std::string> lines = GoodJhd();
    lines[one.Line - 1] = one.Text;
    const FileReading reading = ReadJhd(JhdText(lines), "A");
    ASSERT_EQ(reading.Refused.size(), 1U) << one.Text;
    EXPECT_TRUE(reading.Births.empty());
    EXPECT_EQ(reading.Refused[0].Line, one.Line == 1 ? 3U : one.Line) << one.Text;
    EXPECT_NE(reading.Refused[0].Reason.find(one.Reason), std::string::npos)
        << reading.Refused[0].Reason;
  }
  EXPECT_EQ(ReadJhd("7\n5\n1990\n", "A").Refused.at(0).Reason, "the file ends before its time");
  EXPECT_NE(ReadMtx("[Birth]\nName=A\n", "A").Refused.at(0).Reason.find("save the chart as .jhd"),
            std::string::npos);
  EXPECT_EQ(ReadMtx("", "A").Refused.size(), 1U);
}

}  // namespace
}  // namespace orvex::exchange
