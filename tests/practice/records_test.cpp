#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <thread>

#include "chart/chart_moment.h"
#include "chart/client_saving.h"
#include "chart/instant_chart.h"
#include "core/exact_numbers.h"
#include "practice/birthdays.h"
#include "practice/cities.h"
#include "practice/client_csv.h"
#include "practice/client_import.h"
#include "practice/client_list.h"
#include "practice/client_search.h"
#include "practice/deleted_client.h"
#include "practice/export_list.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

using Strings = std::vector<std::string>;

class Records : public testing::Test {
 protected:
  std::int32_t Add(const std::string& name, const std::string& birth = "1990-07-05 14:30",
                   const std::function<void(chart::ClientForm&)>& change = {}) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    if (change) {
      change(form);
    }
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused);
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return saved.Id;
  }

  std::int64_t Count(const std::string& rows) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  std::vector<std::string> Names(const SearchFilter& filter) const {
    std::vector<std::string> names;
    for (const core::Row& row : SearchClients(*session_, filter).Results.Rows) {
      names.push_back(row.Cells.front().Text);
    }
    return names;
  }

  // The same, with the cells read afterwards and the last row first.
  Strings NamesReadLate(const SearchFilter& filter) const {
    std::vector<FoundRow> found = FindRows(*session_, filter).Rows;
    std::reverse(found.begin(), found.end());
    Strings names;
    for (const core::Row& row : ReadFoundRows(*session_, filter, found)) {
      EXPECT_EQ(row.Tag, core::PaddedWhole(found.at(names.size()).ClientId, 1));
      names.push_back(row.Cells.at(0).Text);
    }
    std::reverse(names.begin(), names.end());
    return names;
  }

  ImportReport Import(const std::string& text, bool dryRun = false) {
    return ImportClients(*session_, {text, 1, dryRun}, [](std::size_t, std::size_t) {});
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(Records, EachFilterOfTheSearchNarrowsTheList) {
  Add("B", "1990-07-05 14:30", [](auto& f) { f.Comments = "knee; 50% better"; });
  Add("A", "2001-01-01 00:00", [](auto& f) { f.Gender = "F"; });
  Add("C", "1980-05-05 05:05", [](auto& f) {
    f.Gender = "O";
    f.Horary = true;
    f.HoraryNumber = "249";
    f.HoraryQuestion = "?";
  });
  session_->StoreConnection.Execute("Update client_planets set inretro = 0 where planetid = 4");
  session_->StoreConnection.Execute(
      "Update client_planets set inretro = 1 where planetid = 4 and clientid = 2");
  // The true of stores that came from elsewhere.
  session_->StoreConnection.Execute(
      "Update client_planets set inretro = -1 where planetid = 5 and clientid = 3");
  session_->StoreConnection.Execute(
      "Update client_planets set inretro = 0 where planetid = 5 and clientid < 3");
  session_->StoreConnection.Execute("Update client_master set cuspdegree1 = 29.99 where id = 1");
  session_->StoreConnection.Execute("Update client_master set cuspdegree1 = 330 where id = 2");
  session_->StoreConnection.Execute("Update client_master set cuspdegree1 = 359.99 where id = 3");
  const core::DateTime day = test::Moment("1990-07-05");
  const std::pair<Strings, SearchFilter> cases[] = {
      {{"A", "B", "C"}, {}},
      {{"A"}, {.Gender = "F"}},
      {{"C"}, {.Gender = "O"}},
      {{"A"}, {.RetrogradePlanetId = 4}},
      {{"C"}, {.RetrogradePlanetId = 5}},
      {{"B"}, {.AscendantRashi = 1}},
      {{"A", "C"}, {.AscendantRashi = 12}},
      {{"B"}, {.Text = "  KNEE "}},
      {{}, {.Text = "it's"}},
      {{}, {.Text = "x'; delete from client_master; --"}},
      {{"A", "B"}, {.Dates = DateRange::After, .From = day}},
      {{"C"}, {.Dates = DateRange::Before, .From = day}},
      {{"B", "C"},
       {.Dates = DateRange::Between,
        .From = test::Moment("1980-05-05 05:05"),
        .To = test::Moment("1990-07-05 14:30")}},
      {{"A", "B", "C"}, {.GroupIds = std::vector<std::int32_t>{1, 2}}},
      {{}, {.GroupIds = std::vector<std::int32_t>{2}}}};
  for (const auto& [names, filter] : cases) {
    EXPECT_EQ(Names(filter), names) << filter.Text << filter.Gender << filter.AscendantRashi;
    EXPECT_EQ(NamesReadLate(filter), names) << filter.Text << filter.Gender;
  }
  EXPECT_EQ(Count("client_master"), 3);
  const SearchResult all = SearchClients(*session_, {});
  EXPECT_EQ(all.ResultLine, "Found 3 record(s). Double click on a record to View Horoscope.");
  EXPECT_EQ(all.Results.At(2, ClientResultColumn::BirthDate).Text, "5 May 1980 (249)");
  EXPECT_EQ(all.Results.At(2, ClientResultColumn::Gender).Text, "Other");
  EXPECT_EQ(all.Results.Rows[2].Tag, "3");
  EXPECT_EQ(SearchClients(*session_, {.Text = "nowhere"}).ResultLine, "Found 0 record(s).");
  const SearchResult refused = SearchClients(*session_, {.GroupIds = std::vector<std::int32_t>{}});
  EXPECT_EQ(refused.Refused->Text, "You need to select at least one Group from the list.");
  EXPECT_EQ(refused.ResultLine, "Search Result(s):");
}

TEST_F(Records, ADeletedClientComesBackWithItsGroupOrToTheOneOfThatName) {
  const auto group = [this](std::int32_t client) {
    return PlaceOfClient(*session_, client).GroupName;
  };
  const std::int32_t id = Add("A");
  const std::int32_t family = AddGroup(*session_, "Family").Id;
  MoveClient(*session_, id, family);
  const std::optional<KeptClient> kept = KeepClient(*session_, id);
  ASSERT_TRUE(kept);
  EXPECT_EQ(BringBack(*session_, *kept).Refused->Text, "This client is stored already.");
  DeleteClient(*session_, id);
  DeleteGroup(*session_, family);
  EXPECT_EQ(BringBack(*session_, *kept).Id, id);
  EXPECT_EQ(group(id), "Family");
  EXPECT_EQ(PlaceOfClient(*session_, id).GroupId, family);

  DeleteGroup(*session_, family);
  EXPECT_FALSE(KeepClient(*session_, id));
  const std::int32_t again = AddGroup(*session_, "family").Id;
  EXPECT_EQ(BringBack(*session_, *kept).Id, id);
  EXPECT_EQ(PlaceOfClient(*session_, id).GroupId, again);
  EXPECT_EQ(Count("group_master"), 2);
  EXPECT_EQ(Count("client_planets"), 9);
}

TEST_F(Records, EveryListStandsInOneOrderWithoutCase) {
  const Strings wanted = {"abe", "Ben", "\xC3\x89mile", "\xC3\xA9va", "Zoe"};
  for (const std::size_t next : {4U, 1U, 3U, 0U, 2U}) {
    Add(wanted[next]);
    AddGroup(*session_, wanted[next]);
    SaveNewRemedy(*session_, {0, "Sleep", "Pearl", {}},
                  static_cast<std::int32_t>(Count("client_master")));
    SaveNewCity(*session_, {"One order " + wanted[next], "Europe/Rome", "1", "1", "1"});
  }
  const auto texts = [](const core::Table& table) {
    Strings shown;
    for (const core::Row& row : table.Rows) {
      shown.push_back(row.Cells.front().Text);
    }
    return shown;
  };
  EXPECT_EQ(texts(LoadClientsOfGroup(*session_, 1)), wanted);
  EXPECT_EQ(Names({}), wanted);
  EXPECT_EQ(Names({.Mode = SearchMode::Remedies}), wanted);
  Strings groups = wanted;
  groups.insert(groups.begin() + 4, "General");
  EXPECT_EQ(texts(LoadGroups(*session_)), groups);
  Strings cities = wanted;
  for (std::string& city : cities) {
    city.insert(0, "One order ");
  }
  EXPECT_EQ(texts(SearchCities(*session_, "One order")), cities);
}

TEST_F(Records, ATypedTextThatMakesAnEndlessStatementFindsNothingAfterTwoSeconds) {
  Add("A", "1990-07-05 14:30", [](auto& f) { f.Comments = "knee"; });
  const std::string endless =
      "x%' or (with recursive n(i) as (select 1 union all select i + 1 from n) "
      "select count(*) from n) > 0 or cm.comments like '%";
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(SearchClients(*session_, {.Text = endless}).ResultLine, "Found 0 record(s).");
  const auto took = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(took, std::chrono::milliseconds(1900));
  EXPECT_LT(took, std::chrono::seconds(10));
  EXPECT_EQ(Names({.Text = "knee"}), Strings{"A"});  // the limit goes with its statement
}

TEST_F(Records, RemediesAreFoundByTheirOwnFilters) {
  const std::int32_t id = Add("A");
  Add("B");
  const core::DateTime date = test::Moment("2026-01-02");
  for (const char* problem : {"Sleep", "Work"}) {
    SaveNewRemedy(*session_, {problem[0] == 'S' ? 2 : 0, problem, "Pearl", date}, id);
  }
  const auto count = [this](SearchFilter filter) {
    filter.Mode = SearchMode::Remedies;
    return Names(filter).size();
  };
  EXPECT_EQ(count({}), 2U);  // two remedies are two rows
  EXPECT_EQ(count({.Text = "sleep"}), 1U);
  EXPECT_EQ(count({.Text = "pearl"}), 2U);
  EXPECT_EQ(count({.ForPlanetId = 2}), 1U);
  EXPECT_EQ(count({.ForPlanetId = 0}), 1U);
  EXPECT_EQ(count({.Dates = DateRange::After, .From = date}), 0U);
  EXPECT_EQ(count({.Gender = "F"}), 0U);
  const SearchResult all = SearchClients(*session_, {.Mode = SearchMode::Remedies});
  EXPECT_EQ(all.Results.At(0, RemedyResultColumn::RemedyDate).Text, "2 January 2026");
  EXPECT_EQ(all.Results.Columns.size(), 8U);
}

TEST_F(Records, BirthdaysAreThoseOfEarlierYearsAndOfBirths) {
  Add("Today", "1990-11-24 23:59");
  Add("This year", "2026-11-24 09:00");
  Add("Yesterday", "1990-11-23 10:00");
  Add("Query", "1990-11-24 10:00", [](auto& f) {
    f.Horary = true;
    f.HoraryQuestion = "?";
  });
  const core::Table list = GetBirthdaysToday(*session_);
  ASSERT_EQ(list.Rows.size(), 1U);
  EXPECT_EQ(list.At(0, BirthdayColumn::ClientName).Text, "Today");
  EXPECT_EQ(list.At(0, BirthdayColumn::Age).Text, "36");
  EXPECT_EQ(BirthdayCaption(list), "1 Birthday(s) Today");
}

TEST_F(Records, EachRefusalOfListsGroupsAndRemediesReadsWordForWord) {
  const std::int32_t id = Add("A");
  const std::int32_t other = AddGroup(*session_, "Other").Id;
  session_->State.OpenHoroscopes = {id};
  EXPECT_FALSE(CheckEditClient(*session_, id + 1));
  RemedyForm form{0, "p", "r", test::Moment("2026-01-01")};
  RemedyForm noProblem = form, longProblem = form, noRemedy = form, longRemedy = form;
  noProblem.Problem = " ";
  longProblem.Problem = std::string(1001, 'x');
  noRemedy.Remedy = "\n";
  longRemedy.Remedy = std::string(1001, 'x');
  const std::pair<std::string, std::string> cases[] = {
      {CheckEditClient(*session_, id)->Text, "Horoscope can't be edited as it is currently open."},
      {DeleteClient(*session_, id).Refused->Text,
       "Horoscope can't be deleted as it is currently open."},
      {DeleteGroup(*session_, 1).Refused->Text,
       "Can't delete a Group when one or more Horoscopes are open."},
      {MoveClient(*session_, id, 1).Refused->Text,
       "Source and Destination Groups cannot be the same."},
      {MoveClient(*session_, id, 99).Refused->Text, "There is no group with that id."},
      {MoveClient(*session_, 99, 1).Refused->Text, "There is no client with that id."},
      {SaveNewRemedy(*session_, noProblem, id).Refused->Text,
       "Problem/Symptom is a mandatory field."},
      {SaveNewRemedy(*session_, longProblem, id).Refused->Text,
       "Text cannot exceed more than 1000 characters."},
      {SaveNewRemedy(*session_, noRemedy, id).Refused->Text,
       "Remedy/Solution is a mandatory field."},
      {SaveNewRemedy(*session_, longRemedy, id).Refused->Text,
       "Text cannot exceed more than 1000 characters."},
      {kDeleteClientQuestion, "Are you sure you want to delete the selected Client?"},
      {kDeleteGroupQuestion,
       "Are you sure you want to delete the selected Group and all Clients under it?"},
      {kNoGroupsStatus, "No Groups defined. Please add a Group to get started."},
      {ClientCountText(0, true), "0 client(s) filtered"},
      {ClientCountText(3, false), "3 client(s)"},
      {TotalClients(*session_), "Total Clients: 1"},
      {RemedyCaption("A"), "Remedy given to: A"},
      {CheckPickedCity(0)->Text, "Please select a City from the list."},
      {RemedyPlanets(*session_).at(0).Name + ", " + RemedyPlanets(*session_).at(1).Name,
       "None, Jupiter"}};
  for (const auto& [told, text] : cases) {
    EXPECT_EQ(told, text);
  }
  EXPECT_FALSE(OpenEditGroup(*session_, 99));
  EXPECT_EQ(home_.Messages.All().back().Text,
            "The record you are trying to edit could not be retrieved.");
  session_->State.OpenHoroscopes.clear();
  ASSERT_FALSE(MoveClient(*session_, id, other).Refused);
  EXPECT_EQ(LoadClientsOfGroup(*session_, other).Rows.size(), 1U);
}

TEST_F(Records, AClientGoesWithPlanetsAndRemediesAndIsInTheBackup) {
  const std::int32_t id = Add("Goes");
  Add("Stays");
  SaveNewRemedy(*session_, {0, "p", "r", test::Moment("2026-01-01")}, id);
  ASSERT_FALSE(DeleteClient(*session_, id).Refused);
  EXPECT_EQ(Count("client_master"), 1);
  EXPECT_EQ(Count("client_planets"), 9);
  EXPECT_EQ(Count("client_remedy"), 0);
  std::filesystem::path newest;
  for (const auto& entry :
       std::filesystem::directory_iterator(home_.Place.DataFolder() / "Backups")) {
    newest = std::max(newest, entry.path());
  }
  EXPECT_EQ(core::Store::Open(newest).Query("Select count(*) as n from client_master").Integer("n"),
            2);
  // Without a backup nothing is deleted.
  std::filesystem::remove_all(home_.Place.DataFolder() / "Backups");
  core::WriteFileSafely(home_.Place.DataFolder() / "Backups", "in the way");
  EXPECT_EQ(DeleteClient(*session_, 2).Refused->Text,
            "The database could not be backed up (the folder of the backups could not be made); "
            "nothing was deleted.");
  EXPECT_EQ(Count("client_master"), 1);
}

TEST_F(Records, AnInstantChartIsAClientOfTheMomentAtTheUserCity) {
  core::ApplicationState& state = session_->State;
  const std::int32_t id = chart::CreateInstantChart(*session_).Id;
  const core::Result row = session_->StoreConnection.Query(
      "Select * from client_master where id = " + std::to_string(id));
  EXPECT_EQ(row.Text("fullname"), "Instant Chart - 24 Nov 2026 10:00");
  EXPECT_EQ(row.Text("birthdate"), "2026-11-24 10:00:00");
  EXPECT_EQ(row.Text("latitude"), "25.07725");
  EXPECT_EQ(row.Text("gender"), "O");
  EXPECT_EQ(row.Text("ascdegreetype"), "A");
  EXPECT_EQ(Count("client_planets"), 9);
  state.InstantChartGroupId = 0;
  EXPECT_EQ(chart::CreateInstantChart(*session_).Refused->Text,
            "Instant Chart not configured in Settings window. Do you wish to configure it now?");
  EXPECT_EQ(Count("client_master"), 1);
  // A negative offset at an eastern longitude: -60 - 20 minutes, added without their sign.
  const core::DateTime noon = test::Moment("2026-11-24 12:00");
  EXPECT_EQ(chart::InstantMomentUt(noon, -1, 10), noon + std::chrono::minutes(80));
  EXPECT_EQ(chart::InstantMomentUt(noon, 5.5F, 72), noon - std::chrono::minutes(330));
}

TEST_F(Records, WhatGoesOutAsCsvComesInAgainUnchanged) {
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

TEST_F(Records, EachLineThatIsNoClientIsRefusedWithItsNumberAndReason) {
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

TEST_F(Records, ASpreadsheetIsWrittenPrivatelyOrTheOldOneStays) {
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
TEST_F(Records, ASpreadsheetHasPointsWhateverTheMachinesLocale) {
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

// Kills a deletion of a large group at a moment that grows from round to round.
TEST_F(Records, AKilledGroupDeletionLeavesAllOfItsClientsOrNone) {
  constexpr int kClients = 10000;
  constexpr int kKills = 12;
  Add("Kept");
  session_->StoreConnection.ExecuteScript(
      "insert into group_master (id, groupname) values (2, 'Large');"
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000)"
      " insert into client_master (id, fullname, groupid, cityid)"
      " select 100 + i, 'Client', 2, 19 from n;"
      "insert into client_planets (clientid, planetid)"
      " select cm.id, pm.id from client_master cm, planet_master pm where cm.groupid = 2");
  session_.reset();
  const std::string whole = test::ReadFile(home_.Place.StoreFile());
  int kept = 0;
  for (int round = 0; round < kKills; ++round) {
    core::WriteFileSafely(home_.Place.StoreFile(), whole);
    const pid_t child = ::fork();
    if (child == 0) {
      const auto session = home_.Start();
      DeleteGroup(*session, 2);
      ::_exit(0);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20 + round * 15));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    session_ = home_.Start();
    ASSERT_TRUE(session_);
    const std::int64_t clients = Count("client_master where groupid = 2");
    EXPECT_TRUE(clients == 0 || clients == kClients) << clients;
    EXPECT_EQ(Count("client_planets"), 9 + clients * 9);
    EXPECT_EQ(Count("group_master where id = 2"), clients == 0 ? 0 : 1);
    kept += clients == kClients ? 1 : 0;
    session_.reset();
  }
  EXPECT_GT(kept, 0) << "no kill fell before the end of a deletion";
}

}  // namespace
}  // namespace orvex::practice
