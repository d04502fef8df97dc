// Rules of the lists of a practice that show only in a certain record: texts in another script, a
// fill that broke off, a birth before 1900, a line of an import that is odd in one way.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "chart/client_saving.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/birthdays.h"
#include "practice/cities.h"
#include "practice/client_csv.h"
#include "practice/client_import.h"
#include "practice/client_list.h"
#include "practice/demo_home.h"
#include "practice/export_list.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "practice/zone_clock.h"
#include "support/data_folder.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

// Letters of three bytes each.
std::string Letters(std::size_t count) {
  return core::Join(std::vector<std::string>(count, "\u0905"), "");
}

class PracticeRules : public testing::Test {
 protected:
  std::int64_t Count(const std::string& rows) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  ImportReport Import(const std::string& text) {
    return ImportClients(*session_, {text, 1, false}, [](std::size_t, std::size_t) {});
  }

  // Why the one line of an import is refused, "" where it is taken.
  std::string Refused(const std::string& head, const std::string& line) {
    const ImportReport report = Import(head + "\n" + line + "\n");
    EXPECT_EQ(report.Imported + report.Refused.size(), 1U) << line;
    return report.Refused.empty() ? "" : report.Refused[0].Reason;
  }

  std::string LastClient(const std::string& column) const {
    return session_->StoreConnection.Query("Select Top 1 * from client_master order by id desc")
        .Text(column);
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(PracticeRules, AnEditedCityKeepsEachValueInItsOwnField) {
  const CityForm form{"Changed", "", "3.5", "1.25", "-2.75"};
  ASSERT_FALSE(SaveCityChanges(*session_, form, 19).Refused);
  const CityForm read = OpenEditCity(*session_, 19).value();
  EXPECT_EQ(read.CityName, "Changed");
  EXPECT_EQ(read.Offset, "3.5");
  EXPECT_EQ(read.Latitude, "1.25");
  EXPECT_EQ(read.Longitude, "-2.75");
  EXPECT_EQ(read.TimeZone, "Asia/Dubai");
  const core::Table list = SearchCities(*session_, "Changed");
  ASSERT_EQ(list.Rows.size(), 1U);
  EXPECT_EQ(list.At(0, CityColumn::Latitude).Text, "1.25");
  EXPECT_EQ(list.At(0, CityColumn::Longitude).Text, "-2.75");
  EXPECT_EQ(list.At(0, CityColumn::Offset).Text, "3.5");
  EXPECT_EQ(list.At(0, CityColumn::Country).Text, "AE");
}

TEST_F(PracticeRules, LimitsCountCharactersAndNotBytes) {
  CityForm city{Letters(100), "Europe/Rome", "1", "1", "1"};
  EXPECT_FALSE(SaveNewCity(*session_, city).Refused);
  city.CityName = Letters(101);
  EXPECT_TRUE(SaveNewCity(*session_, city).Refused);
  EXPECT_FALSE(AddGroup(*session_, Letters(20)).Refused);
  EXPECT_TRUE(AddGroup(*session_, Letters(21)).Refused);
  ASSERT_EQ(Refused("name,birth,city id", "Asha,1990-07-05 14:30,1"), "");
  RemedyForm remedy{0, Letters(1000), Letters(1000), test::Moment("2026-01-01")};
  EXPECT_FALSE(SaveNewRemedy(*session_, remedy, 1).Refused);
  remedy.Problem = Letters(1001);
  EXPECT_EQ(SaveNewRemedy(*session_, remedy, 1).Refused->Field, "problem");
  remedy = {0, "p", Letters(1001), test::Moment("2026-01-01")};
  EXPECT_EQ(SaveNewRemedy(*session_, remedy, 1).Refused->Field, "remedy");
}

TEST_F(PracticeRules, NoTextOfAClientRunsInASpreadsheet) {
  ASSERT_FALSE(SaveNewCity(*session_, {"=CITY()", "Europe/Rome", "1", "42", "13"}).Refused);
  const std::string id =
      session_->StoreConnection.Query("Select max(id) as id from city_master").Text("id");
  ASSERT_FALSE(AddGroup(*session_, "=GROUP()").Refused);
  EXPECT_EQ(Refused("name,birth,city id,email,mobile,comments,horary,question,group",
                    "=NAME(),1990-07-05 14:30," + id +
                        ",=EMAIL(),=MOBILE(),=COMMENT(),5,=QUESTION(),=GROUP()"),
            "");
  const std::string out = ClientsAsCsv(*session_, std::nullopt);
  for (const char* text : {"NAME", "CITY", "EMAIL", "MOBILE", "COMMENT", "QUESTION", "GROUP"}) {
    EXPECT_TRUE(core::Contains(out, ",'=" + std::string(text) + "()") ||
                out.find("\n'=" + std::string(text) + "()") != std::string::npos)
        << text << "\n"
        << out;
  }
  EXPECT_EQ(Import(out).AlreadyStored, 1U);
}

TEST_F(PracticeRules, GendersOfAnImportMayBeLettersOrWords) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "M"},       {"m", "M"},      {"Male", "M"},    {"f", "F"},
      {"Female", "F"}, {"FEMALE", "F"}, {" other ", "O"}, {"o", "O"}};
  int number = 0;
  for (const auto& [typed, stored] : cases) {
    EXPECT_EQ(Refused("name,birth,city id,gender",
                      "Client " + std::to_string(++number) + ",1990-07-05 14:30,1," + typed),
              "");
    EXPECT_EQ(LastClient("gender"), stored) << typed;
  }
  EXPECT_EQ(Refused("name,birth,city id,gender", "A,1990-07-05 14:30,1,W"),
            "gender: \"W\" is none of M, F and O");
}

TEST_F(PracticeRules, LinesOfAnImportThatAskForWhatIsNotThereAreRefused) {
  ASSERT_FALSE(AddGroup(*session_, "Family").Refused);
  const std::string head = "name,birth,city id,group,horary,question,ascendant";
  EXPECT_EQ(Refused(head, "A,1990-07-05 14:30,1,Nowhere,,,"),
            "group: there is no group \"Nowhere\"");
  EXPECT_EQ(Refused(head, "A,1990-07-05 14:30,1,family,,,"), "");
  EXPECT_EQ(LastClient("groupid"), "2");
  EXPECT_EQ(Refused(head, "B,1990-07-05 14:30,1,,,,"), "");
  EXPECT_EQ(LastClient("groupid"), "1");
  EXPECT_EQ(Refused(head, "C,1990-07-05 14:30,1,,5,Why?,12.5"),
            "ascendant: a horary query takes no Ascendant by hand");
  EXPECT_EQ(Refused(head, "D,1990-07-05 14:30,1,,,,12.5"), "");
  EXPECT_EQ(LastClient("ascdegreetype") + LastClient("CuspDegree1"), "M12.5");
  EXPECT_EQ(Refused(head, "E,1990-07-05 14:30,1,,5,Why?,"), "");
  EXPECT_EQ(LastClient("horaryno") + LastClient("horaryquestion"), "5Why?");
}

// In the far north neither a planet's sign nor the next may hold a cusp: such a birth comes in as
// the dialog saves it, with the house empty.
TEST_F(PracticeRules, AChartWithoutAHouseComesInWithTheHouseEmpty) {
  const ImportReport report = Import(
      "name,birth,city id,latitude,longitude,offset\n"
      "Before,1990-07-05 14:30,1,,,\n"
      "No house,1971-06-18 00:19,1,60.12,20,0\n"
      "After,1990-07-05 14:30,1,,,\n");
  EXPECT_EQ(report.Imported, 3U);
  EXPECT_TRUE(report.Refused.empty());
  EXPECT_EQ(Count("client_planets"), 27);
  EXPECT_EQ(Count("client_planets where clientid = 2 and rashihouse is null"), 1);
  EXPECT_EQ(Count("client_planets where rashihouse is null"), 1);
}

TEST_F(PracticeRules, TheListTellsTheColumnThatTheSettingsSortItBy) {
  const std::pair<const char*, ClientColumn> cases[] = {
      {"CLN", ClientColumn::ClientName}, {"BHD", ClientColumn::BirthDate},
      {"MBL", ClientColumn::BirthDate},  {"CTY", ClientColumn::City},
      {"CRD", ClientColumn::CreatedOn},  {"EML", ClientColumn::Email}};
  for (const auto& [code, column] : cases) {
    session_->State.SortColumn = core::SortColumnOfCode(code);
    EXPECT_EQ(SortedColumn(*session_), column) << code;
  }
}

TEST_F(PracticeRules, ClientsStandInTheirOwnColumns) {
  ASSERT_EQ(Refused("name,birth,city id,gender,email,mobile,comments,horary,question",
                    "Name,1990-07-05 14:30,1,F,mail,phone,note,77,why"),
            "");
  const core::Table list = LoadClientsOfGroup(*session_, 1);
  const std::pair<ClientColumn, const char*> cells[] = {
      {ClientColumn::ClientName, "Name"},       {ClientColumn::Gender, "F"},
      {ClientColumn::BirthDate, "5 July 1990"}, {ClientColumn::HoraryNumber, "77"},
      {ClientColumn::City, "Mumbai"},           {ClientColumn::CreatedOn, "24 November 2026"},
      {ClientColumn::Mobile, "phone"},          {ClientColumn::Email, "mail"},
      {ClientColumn::Comments, "note"}};
  for (const auto& [column, text] : cells) {
    EXPECT_EQ(list.At(0, column).Text, text);
  }
  EXPECT_EQ(list.At(0, ClientColumn::HoraryNumber).Tooltip, "why");
}

TEST_F(PracticeRules, AFillOfTheDemonstrationThatBrokeOffIsEndedAndDoublesNothing) {
  const auto all = [this] {
    return std::array<std::int64_t, 3>{Count("client_master"), Count("client_remedy"),
                                       Count("group_master")};
  };
  EXPECT_TRUE(NeedsDemoClients(home_.Place));
  FillDemo(*session_, test::DataFolder());
  EXPECT_FALSE(NeedsDemoClients(home_.Place));
  const auto filled = all();
  EXPECT_GT(filled[1], 0);
  session_->StoreConnection.Execute("Delete from client_remedy where id = 1");
  FillDemo(*session_, test::DataFolder());
  EXPECT_EQ(all(), filled);
}

// From 1947 on a stored offset is what the clocks of the place showed, and every comment says where
// the time comes from.
TEST_F(PracticeRules, TheDemonstrationNamesTheSourceOfEachTimeAndHasTheOffsetOfItsClocks) {
  FillDemo(*session_, test::DataFolder());
  int living = 0;
  for (core::Result row = session_->StoreConnection.Query(
           "Select cm.fullname, cm.birthdate, cm.offset, cm.longitude, cm.comments, cm.horary, "
           "ct.timezone from client_master cm, city_master ct where cm.cityid = ct.id");
       !row.AtEnd(); row.Next()) {
    SCOPED_TRACE(row.Text("fullname"));
    const std::string comments = row.Text("comments");
    EXPECT_TRUE(row.Flag("horary") || core::Contains(comments, "ource: ") ||
                core::Contains(comments, "ource of the time: ") ||
                core::Contains(comments, "not from a record") ||
                core::Contains(comments, "the time is invented too"))
        << comments;
    const core::DateTime birth = row.Moment("birthdate").value();
    if (core::PartsOf(birth).Year >= 1947 && !row.Flag("horary")) {
      ++living;
      const double longitude = core::ToDouble(row.Text("longitude"));
      EXPECT_DOUBLE_EQ(core::ToDouble(row.Text("offset")),
                       ClocksOf(row.Text("timezone"), birth, longitude).OffsetInForce);
    }
  }
  EXPECT_EQ(living, 35);
}

class Spreadsheets : public testing::Test {
 protected:
  // The parts of a written table: the cells of the sheet and the texts that they share.
  std::string Written(const core::Table& table) {
    const std::filesystem::path file = folder_.Path() / "list.xlsx";
    EXPECT_FALSE(ExportList(table, file, "List"));
    const std::string command =
        "python3 -c 'import sys, zipfile; book = zipfile.ZipFile(sys.argv[1]);"
        "print(*(book.read(\"xl/\" + part).decode() for part in"
        " (\"worksheets/sheet1.xml\", \"sharedStrings.xml\", \"styles.xml\")))' " +
        file.string();
    std::string text;
    FILE* pipe = ::popen(command.c_str(), "r");
    std::array<char, 4096> buffer{};
    for (std::size_t got = 0; (got = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
      text.append(buffer.data(), got);
    }
    EXPECT_EQ(::pclose(pipe), 0);
    return text;
  }

  static core::Cell DateCell(const char* moment) {
    const core::DateTime at = test::Moment(moment);
    core::Cell cell;
    cell.Text = core::LongDateText(at, false);
    cell.SortKey = core::StoredDateTimeText(at);
    return cell;
  }

  test::TempFolder folder_;
};

TEST_F(Spreadsheets, DatesAreDatesFrom1901OnAndTextsBefore) {
  core::Table table{{{"Date", 100}}, {}};
  for (const char* moment :
       {"1879-03-14 11:30", "1900-12-31 00:00", "1901-01-01 00:00", "2000-01-01 12:00"}) {
    table.AddRow().Cells[0] = DateCell(moment);
  }
  const std::string sheet = Written(table);
  EXPECT_TRUE(core::Contains(sheet, ">14 March 1879<"));
  EXPECT_TRUE(core::Contains(sheet, ">31 December 1900<"));
  EXPECT_TRUE(core::Contains(sheet, "<v>367</v>"));      // days since the last of 1899
  EXPECT_TRUE(core::Contains(sheet, "<v>36526.5</v>"));  // noon
  EXPECT_TRUE(core::Contains(sheet, "d mmmm yyyy"));
}

TEST_F(Spreadsheets, HiddenColumnsStayHiddenAndLongTextsAreCutAndNotRefused) {
  core::Table table{{{"Shown", 70}, {"Hidden", 0}, {"Plain"}}, {}};
  core::Row& row = table.AddRow();
  row.Cells[0].Text = std::string(40000, 'x');
  row.Cells[1].Text = "secret";
  row.Cells[2].Text = "=1+1";
  core::Row& numbers = table.AddRow();
  numbers.Cells[0] = {"7", "", "", "", "", false, "7"};
  numbers.Cells[2] = {"7 houses", "", "", "", "", false, "7"};
  const std::string sheet = Written(table);
  EXPECT_TRUE(core::Contains(sheet, std::string(32767, 'x') + "<"));
  EXPECT_FALSE(core::Contains(sheet, std::string(32768, 'x')));
  std::size_t hidden = 0;
  for (std::size_t at = 0; (at = sheet.find("hidden=\"1\"", at)) != std::string::npos; ++at) {
    ++hidden;
  }
  EXPECT_EQ(hidden, 1U);
  EXPECT_TRUE(core::Contains(sheet, "<col min=\"2\" max=\"2\""));
  EXPECT_FALSE(core::Contains(sheet, "<f>"));
  EXPECT_TRUE(core::Contains(sheet, "<v>7</v>"));
  EXPECT_TRUE(core::Contains(sheet, ">7 houses<"));
  EXPECT_TRUE(core::Contains(sheet, "state=\"frozen\""));
}

TEST(ZoneWords, AReadingThatIsNotPlainIsToldInASentence) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"America/New_York", "2021-03-14 02:30",
       "No clock showed this time: it was put forward from the offset -5 to -4."},
      {"America/New_York", "2021-11-07 01:30",
       "This time came twice: first with the offset -4, then with -5."},
      {"Asia/Kolkata", "1850-01-01 10:00",
       "Before the zone's first standard time: the local mean time of the longitude."},
      {"Asia/Kolkata", "1990-01-01 10:00", ""}};
  for (const auto& [zone, local, words] : cases) {
    EXPECT_EQ(ReadingText(ClocksOf(zone, test::Moment(local), 72)), words);
  }
}

}  // namespace
}  // namespace orvex::practice
