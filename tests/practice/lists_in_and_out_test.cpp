#include <array>
#include <clocale>
#include <cstdlib>

#include "practice/client_csv.h"
#include "practice/client_import.h"
#include "practice/client_list.h"
#include "practice/export_list.h"
#include "practice/records_home.h"

namespace orvex::practice {
namespace {

class ListsInAndOut : public RecordsTest {
 protected:
  ImportReport Import(const std::string& text, bool dryRun = false) {
    return ImportClients(*session_, {text, 1, dryRun}, [](std::size_t, std::size_t) {});
  }
};

TEST_F(ListsInAndOut, WhatGoesOutAsCsvComesInAgainUnchanged) {
  Add("=HYPERLINK(\"x\")", "1990-07-05 14:30:15", [](auto& f) {
    f.Comments = "said \"no\",\r\n\nthen; '=x";
    f.Email = "@a";
    f.Mobile = "+91 98";
    f.Latitude = "-33.123456";
    f.Offset = "-5.5";
  });
  Add("Query", "2020-02-29 12:00", [](auto& f) {
    f.Horary = true;
    f.HoraryNumber = "249";
    f.HoraryQuestion = "-why?";
  });
  Add("By hand \xE0\xA4\x85", "1850-01-01 00:00", [](auto& f) {
    f.AscendantByHand = true;
    f.AscendantDegree = "123.45";
  });
  Add("Twin");
  Add("Twin");
  const std::string out = ClientsAsCsv(*session_, std::nullopt);
  const std::string charts = test::ReadFile(home_.Place.StoreFile());
  EXPECT_EQ(Import(out).AlreadyStored, 5U);  // a second import changes nothing
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), charts);
  const auto planets = [this] {
    std::string text;
    for (core::Result row = session_->StoreConnection.Query("Select * from client_planets");
         !row.AtEnd(); row.Next()) {
      text += row.Text("planetid") + row.Text("degree") + row.Text("sublord") + "\n";
    }
    return text;
  };
  const std::string before = planets();
  session_->StoreConnection.Execute("Delete from client_planets");
  session_->StoreConnection.Execute("Delete from client_master");
  EXPECT_EQ(Import(out, true).Imported, 5U);
  EXPECT_EQ(Count("client_master"), 0);
  EXPECT_EQ(Import(out).Imported, 5U);
  EXPECT_EQ(ClientsAsCsv(*session_, std::nullopt), out);
  EXPECT_EQ(planets(), before);
}

TEST_F(ListsInAndOut, EachLineThatIsNoClientIsRefusedWithItsNumberAndReason) {
  const std::pair<const char*, const char*> lines[] = {
      {"Good;1990-07-05 14:30;1;;", ""},
      {" ;1990-07-05 14:30;1;;", "Client Name is a mandatory field."},
      {"A;1990-02-30 14:30;1;;", "is no moment of the years"},
      {"A;1990-07-05;1;;", "is no moment of the years"},
      {"A;1990-07-05 14:30;999999;;", "there is no city"},
      {"A;1990-07-05 14:30;1;Pune;", "not \"Pune\""},
      {"A;1990-07-05 14:30;;San Pedro;", "cities are named \"San Pedro\""},
      {"A;1990-07-05 14:30;;Nowhere At All;", "there is no city"},
      {"A;1990-07-05 14:30;;;", "Please select a City from the list."},
      {"A;1990-07-05 14:30;1;;X", "gender: \"X\" is none of"},
      {"A;1990-07-05 14:30;1", "not as many fields"},
      {"\xFF;1990-07-05 14:30;1;;", "not text in UTF-8"}};
  std::string text = "\xEF\xBB\xBFNAME;Birth;City ID;city;Gender\r\n";
  for (const auto& [line, reason] : lines) {
    text += std::string(line) + "\r\n";
  }
  const ImportReport report = Import(text);
  EXPECT_EQ(report.Imported, 1U);
  ASSERT_EQ(report.Refused.size(), std::size(lines) - 1);
  for (std::size_t i = 1; i < std::size(lines); ++i) {
    EXPECT_EQ(report.Refused[i - 1].Line, i + 2);
    EXPECT_NE(report.Refused[i - 1].Reason.find(lines[i].second), std::string::npos)
        << report.Refused[i - 1].Reason;
  }
  for (const char* head : {"", "name,birth", "name,birth,city,shoe size", "name,name,birth,city"}) {
    EXPECT_THROW(Import(head), std::runtime_error) << head;
  }
  session_->StoreConnection.ExecuteScript(
      "create trigger refuse before insert on client_master when new.fullname = 'Bad' "
      "begin select raise(abort, 'no'); end");
  EXPECT_THROW(Import("name,birth,city id\nC,1990-07-05 14:30,1\nBad,1990-07-05 14:30,1\n"),
               core::StoreError);
  EXPECT_EQ(Count("client_master"), 1);
}

TEST_F(ListsInAndOut, ASpreadsheetIsWrittenPrivatelyOrTheOldOneStays) {
  Add("=1+1");
  const std::filesystem::path file = home_.Place.Folder / "list.xlsx";
  EXPECT_FALSE(ExportList(LoadClientsOfGroup(*session_, 1), file, "Clients"));
  EXPECT_EQ(test::ReadFile(file).substr(0, 2), "PK");
  EXPECT_EQ(std::filesystem::status(file).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_EQ(ExportList({}, "/nowhere/list.xlsx", "x")->Text,
            "Could not export data to Microsoft Excel.");
  for (const char* title : {"", "'", "[:*?/\\]", "history", "\n"}) {
    EXPECT_EQ(SheetName(title), "List") << title;
  }
  EXPECT_EQ(SheetName("a/b'" + std::string(40, 'x')), "a b'" + std::string(27, 'x'));
}

// On a machine whose numbers have a comma.
TEST_F(ListsInAndOut, ASpreadsheetHasPointsWhateverTheMachinesLocale) {
  const std::string folder = home_.Place.Folder.string();
  const std::string make =
      "localedef -i de_DE -f UTF-8 '" + folder + "/de_DE.UTF-8' >/dev/null 2>&1";
  if (std::system(make.c_str()) != 0) {
    GTEST_SKIP() << "no locale with a comma can be made here";
  }
  ::setenv("LOCPATH", folder.c_str(), 1);
  ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr);
  const std::filesystem::path file = home_.Place.Folder / "list.xlsx";
  core::Table table{{{"Number", 33}}, {}};
  table.AddRow().Cells.front() = core::Cell{"19.5"};
  table.Rows[0].Cells[0].SortKey = "19.5";
  EXPECT_FALSE(ExportList(table, file, "Numbers"));
  EXPECT_STREQ(std::localeconv()->decimal_point, ",");
  std::setlocale(LC_NUMERIC, "C");
  ::unsetenv("LOCPATH");
  const std::string print = "unzip -p '" + file.string() + "' xl/worksheets/sheet1.xml > '" +
                            folder + "/sheet' 2>/dev/null";
  ASSERT_EQ(std::system(print.c_str()), 0);
  const std::string sheet = test::ReadFile(folder + "/sheet");
  EXPECT_NE(sheet.find("<v>19.5</v>"), std::string::npos) << sheet;
  EXPECT_EQ(sheet.find("width=\"4,"), std::string::npos) << sheet;
}

}  // namespace
}  // namespace orvex::practice
