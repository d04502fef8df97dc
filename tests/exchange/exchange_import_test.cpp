// Births of exchange files on their way into the store and out again.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <functional>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "exchange/aaf_fields.h"
#include "exchange/aaf_writing.h"
#include "exchange/client_export.h"
#include "exchange/exchange_files.h"
#include "exchange/exchange_preview.h"
#include "practice/client_csv.h"
#include "practice/groups.h"
#include "support/test_home.h"

namespace orvex::exchange {
namespace {

bool GoOn(std::size_t /*done*/, std::size_t /*all*/) { return true; }

class Exchange : public testing::Test {
 protected:
  std::filesystem::path Write(const std::string& name, const std::string& text) {
    const std::filesystem::path file = home_.Place.Folder / "in" / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }

  ImportPlan Plan(const std::filesystem::path& path) {
    return PlanImport(*session_, {{path}, 1, test::DataFolder()}, GoOn);
  }

  ImportPlan PlanOf(const std::string& aaf) { return Plan(Write("births.aaf", aaf)); }

  std::size_t Save(const ImportPlan& plan, WithRefused refused = WithRefused::SaveNothing) {
    return SaveImport(*session_, plan, refused, GoOn);
  }

  std::int64_t Count(const std::string& rows) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  std::string AllAsAaf() const {
    std::vector<std::int32_t> ids;
    for (core::Result row =
             session_->StoreConnection.Query("Select id from client_master order by id");
         !row.AtEnd(); row.Next()) {
      ids.push_back(static_cast<std::int32_t>(row.Integer("id")));
    }
    return ClientsAsAaf(*session_, ids, GoOn).value();
  }

  void AddClient(const std::string& name, const std::string& birth,
                 const std::function<void(chart::ClientForm&)>& change) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    change(form);
    EXPECT_FALSE(chart::SaveNewClient(*session_, form, 1).Refused) << name;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
  }

  std::int32_t City(const std::string& name) const {
    return practice::CitySearch(*session_, test::DataFolder()).Find(name, 1).Best.at(0).Id;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// A birth of two lines: date and time, place and country, and the line of the place.
std::string Birth(const std::string& moment, const std::string& place, const std::string& rest) {
  return "#A93:Client,The,f," + moment + "," + place + "\n#B93:" + rest + "\n";
}

TEST_F(Exchange, EachBirthGetsItsCityItsMomentAndItsOffset) {
  struct Case {
    std::string Text;
    const char* Local;
    const char* Offset;
    const char* InFile;
    const char* OfClocks;
    const char* City;
    bool IsNamed;
  };
  const std::vector<Case> cases = {
      // East and west, north and south, summer time by the file.
      {Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,5hE30,0"), "1990-07-05 14:30:00", "5.5",
       "5.5", "5.5", "Pune", true},
      {Birth("5.7.1990,14:30:20", "New York City,US", "*,40N43,74W00,5hW00,1"),
       "1990-07-05 14:30:20", "-4", "-4", "-4", "New York City, NY", true},
      {Birth("15.1.1990,14:30", "S\xE3o Paulo,BR", "*,23S33,46W38,3hW00,1"), "1990-01-15 14:30:00",
       "-2", "-2", "-2", "Sao Paulo", true},
      {Birth("15.1.1990,14:30", "Sydney,AU", "*,33S52,151E13,10hE00,1"), "1990-01-15 14:30:00",
       "11", "11", "11", "Sydney", true},
      // Double summer time; by its old name; the file's offset stays where the clocks differ.
      {Birth("15.7.1944,14:30", "London,GB", "*,51N30,0W10,0hE00,2"), "1944-07-15 14:30:00", "2",
       "2", "2", "London", true},
      {Birth("5.7.1990,14:30", "Bombay,*", "*,19N04,72E53,5hE00,0"), "1990-07-05 14:30:00", "5",
       "5", "5.5", "Mumbai", true},
      // Before zones: the mean time of the longitude, given or not.
      {Birth("14.3.1879,11:30", "Ulm,D", "*,48N24,10E00,0hE40,0"), "1879-03-14 11:30:00", "0.6667",
       "0.6667", "0.6667", "Ulm", true},
      {Birth("14.3.1879,11:30", "Ulm,D", "*,48N24,10E00,*,*"), "1879-03-14 11:30:00", "0.6667", "",
       "0.6667", "Ulm", true},
      // Without summer time in the file, and without a zone: as the clocks showed.
      {Birth("5.7.1990,14:30", "London,GB", "*,51N30,0W10,0hE00,*"), "1990-07-05 14:30:00", "1",
       "1", "1", "London", true},
      {Birth("5.7.1990,14:30", "Delhi,IN", "*,51N30,0W10,0hE00,*"), "1990-07-05 14:30:00", "1", "1",
       "1", "City of Westminster", false},
      {Birth("5.7.1990,14:30", "Z\xC3\xBCrich,CH", "*,47N23,8E33,*,*"), "1990-07-05 14:30:00", "2",
       "", "2", "Zurich", true},
      {Birth("5.7.1990,14:30", "Z\xC3\xBCrich,CH", "*,47N23,8E33,*,*") + "#ZNAM:Europe/Moscow\n",
       "1990-07-05 14:30:00", "4", "", "2", "Zurich", true},
      // The Julian day goes first, but for what its decimals leave open.
      {Birth("5.7.1990,14:30", "Pune,IN", "2448077.91667,18N31,73E51,5hE30,0"),
       "1990-07-05 15:30:00", "5.5", "5.5", "5.5", "Pune", true},
      {Birth("5.7.1990,14:30", "Pune,IN", "2448077.8753,18N31,73E51,5hE30,0"),
       "1990-07-05 14:30:26", "5.5", "5.5", "5.5", "Pune", true},
      {Birth("5.7.1990,14:30:24", "Pune,IN", "2448077.8753,18N31,73E51,5hE30,0"),
       "1990-07-05 14:30:24", "5.5", "5.5", "5.5", "Pune", true},
      {Birth("*,*", "Z\xC3\xBCrich,CH", "2448078.02083,47N23,8E33,*,*"), "1990-07-05 14:30:00", "2",
       "", "2", "Zurich", true},
      // In the hour that came twice the Julian day tells which one it was.
      {Birth("*,*", "New York City,US", "2448192.77083,40N43,74W00,*,*"), "1990-10-28 01:30:00",
       "-5", "", "-4", "New York City, NY", true},
      // A place that no city is named for has the nearest one's clocks.
      {Birth("5.7.1990,14:30", "My Village,IN", "*,18N33,73E48,*,*"), "1990-07-05 14:30:00", "5.5",
       "", "5.5", "Khadki", false}};
  std::string text;
  for (const Case& one : cases) {
    text += one.Text;
  }
  const ImportPlan plan = PlanOf(text);
  ASSERT_EQ(plan.Births.size(), cases.size()) << plan.Refused.at(0).Reason;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    const Case& one = cases[i];
    const PlannedBirth& birth = plan.Births[i];
    EXPECT_EQ(core::StoredDateTimeText(birth.Client.Form.Birth), one.Local) << one.Text;
    EXPECT_EQ(birth.Client.Form.Offset, one.Offset) << one.Text;
    EXPECT_EQ(birth.Clock.OffsetInFile, one.InFile) << one.Text;
    EXPECT_EQ(birth.Clock.OffsetOfClocks, one.OfClocks) << one.Text;
    EXPECT_EQ(birth.Place.IsNamed, one.IsNamed) << one.Text << birth.Place.City.Name;
    EXPECT_EQ(birth.Place.City.Name, one.City) << one.Text;
  }
}

TEST_F(Exchange, CoordinatesAreTheFilesOrTheCitysToTheSecond) {
  const std::int32_t pune = City("pune");
  const practice::FoundCity city = practice::CityOf(*session_, test::DataFolder(), pune);
  const std::string exact = AafLatitude(core::ToDouble(city.Latitude)) + "," +
                            AafLongitude(core::ToDouble(city.Longitude));
  std::string text;
  for (const std::string& one :
       {"Pune,IN\n#B93:*," + exact, std::string("Pune,IN\n#B93:*,18N31,73E52"),
        std::string("Ahmedabad,IN\n#B93:*,*,*"),
        std::string("My Village,IN\n#B93:*,18N33,73E48")}) {
    text += "#A93:A,*,m,5.7.1990,14:30," + one + ",5hE30,0\n#COM:said\n";
  }
  const ImportPlan plan = PlanOf(text);
  ASSERT_EQ(plan.Births.size(), 4U);
  const auto form = [&plan](std::size_t at) { return plan.Births[at].Client.Form; };
  EXPECT_EQ(form(0).Latitude, city.Latitude);
  EXPECT_EQ(form(0).Longitude, city.Longitude);
  EXPECT_EQ(form(1).Latitude, "18.51667");
  EXPECT_EQ(form(1).Longitude, "73.86667");
  EXPECT_EQ(form(2).Latitude,
            practice::CityOf(*session_, test::DataFolder(), City("ahmedabad")).Latitude);
  EXPECT_EQ(form(2).Comments, "said");
  EXPECT_EQ(form(3).Comments, "said\nPlace: My Village, IN");  // the name that no city has is kept
  EXPECT_EQ(form(3).Latitude, "18.55");
}

TEST_F(Exchange, ABirthThatCannotBeSavedIsRefusedAtItsLine) {
  const std::pair<std::string, const char*> births[] = {
      {"#A93:*,*,m,5.7.1990,14:30,Pune,IN\n#B93:*,18N31,73E51,5hE30,0\n",
       "Client Name is a mandatory field."},
      {Birth("5.7.1990,14:30", "San Pedro,*", "*,*,*,5hE30,0"), "cities are named \"San Pedro\""},
      {Birth("5.7.1990,14:30", "Nowhere At All,*", "*,*,*,5hE30,0"), "there is no city named"},
      {Birth("5.7.1990,14:30", "*,*", "*,*,*,5hE30,0"), "neither a name nor a latitude"},
      {Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,*,5hE30,0"), "both latitude and longitude"},
      {Birth("5.7.1990,14:30", "*,*", "*,48S00,120W00,8hW00,0"), "no city within 500 km"},
      {Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,28hE00,0"),
       "Incorrect Offset Value entered."},
      {Birth("25.3.1990,2:30", "Z\xC3\xBCrich,CH", "*,47N23,8E33,*,*"),
       "No clock showed this time"},
      {Birth("28.10.1990,1:30", "New York City,US", "*,40N43,74W00,*,*"), "This time came twice"},
      {Birth("1.1.100g,0:30", "Pune,IN", "*,18N31,73E51,5hE30,0"),
       "outside the years 100 to 9999"}};
  std::string text = Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,5hE30,0");
  for (const auto& [birth, reason] : births) {
    text += birth;
  }
  const ImportPlan plan = PlanOf(text);
  EXPECT_EQ(plan.Births.size(), 1U);
  ASSERT_EQ(plan.Refused.size(), std::size(births));
  for (std::size_t i = 0; i < std::size(births); ++i) {
    EXPECT_EQ(plan.Refused[i].Line, 2 * i + 3);
    EXPECT_EQ(plan.Refused[i].File, "births.aaf");
    EXPECT_NE(plan.Refused[i].Reason.find(births[i].second), std::string::npos)
        << plan.Refused[i].Reason;
  }
  const core::Table refused = RefusedTable(plan);
  EXPECT_EQ(refused.At(0, RefusedColumn::Line).Text, "3");
  EXPECT_EQ(refused.At(0, RefusedColumn::Reason).Text, "Client Name is a mandatory field.");
  // All or nothing, unless the refused ones are to be left out.
  EXPECT_EQ(Save(plan), 0U);
  EXPECT_EQ(Count("client_master"), 0);
  EXPECT_EQ(Save(plan, WithRefused::LeaveOut), 1U);
  EXPECT_EQ(Count("client_master"), 1);
  EXPECT_EQ(Count("client_planets"), 9);
}

TEST_F(Exchange, ACancelOrAFailingStoreLeavesNothing) {
  std::string text;
  for (int i = 0; i < 120; ++i) {
    text += Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,5hE30,0");
  }
  const auto stopAt = [](std::size_t last) {
    return [last](std::size_t done, std::size_t /*all*/) { return done < last; };
  };
  const ImportSource source{{Write("many.aaf", text)}, 1, test::DataFolder()};
  const ImportPlan canceled = PlanImport(*session_, source, stopAt(100));
  EXPECT_TRUE(canceled.IsCanceled);
  EXPECT_EQ(Save(canceled), 0U);
  const ImportPlan plan = PlanImport(*session_, source, GoOn);
  EXPECT_EQ(SaveImport(*session_, plan, WithRefused::SaveNothing, stopAt(100)), 0U);
  EXPECT_EQ(Count("client_master"), 0);
  session_->StoreConnection.ExecuteScript(
      "create trigger refuse before insert on client_planets when new.clientid = 60 "
      "begin select raise(abort, 'no'); end");
  EXPECT_THROW(Save(plan), core::StoreError);
  EXPECT_EQ(Count("client_master"), 0);
}

TEST_F(Exchange, AFolderIsReadWithAllItsFilesInOrder) {
  Write("b/ravi kumar.JHD", "7\n5\n1990\n14.30\n-5.3\n-73.51\n18.31\n0\n0\n0\n0\n0\nPune\nIndia\n");
  Write("a.aaf", Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,5hE30,0") + "nonsense\n");
  Write("c.mtx", "7\n5\n1990\n14.30\n-5.3\n-73.51\nnorth\n");
  Write("d.txt", "no birth at all");
  const ImportPlan plan = Plan(home_.Place.Folder / "in");
  ASSERT_EQ(plan.Births.size(), 1U);
  EXPECT_EQ(plan.Births[0].Client.Form.FullName, "ravi kumar");
  EXPECT_EQ(plan.Births[0].File, "b/ravi kumar.JHD");
  ASSERT_EQ(plan.Refused.size(), 2U);
  EXPECT_EQ(plan.Refused[0].File + core::WholeText(static_cast<int>(plan.Refused[0].Line)),
            "a.aaf3");
  EXPECT_EQ(plan.Refused[1].File + core::WholeText(static_cast<int>(plan.Refused[1].Line)),
            "c.mtx7");
  EXPECT_TRUE(IsExchangeSource(home_.Place.Folder / "in"));
  EXPECT_TRUE(IsExchangeSource(Write("any.txt", "\xEF\xBB\xBF#A93:")));
  EXPECT_FALSE(IsExchangeSource(Write("any.csv", "name,birth,city\n")));
  EXPECT_THROW(Plan(home_.Place.Folder / "gone.aaf"), std::runtime_error);
  EXPECT_THROW(Plan(Write("empty.aaf", "#: no birth\n")), std::runtime_error);
  std::filesystem::create_directories(home_.Place.Folder / "none");
  EXPECT_THROW(Plan(home_.Place.Folder / "none"), std::runtime_error);
}

TEST_F(Exchange, WhatGoesOutComesInAgainUnchanged) {
  const auto at = [this](const char* name, const char* offset) {
    return [this, city = City(name), offset](chart::ClientForm& form) {
      chart::SelectCity(*session_, city, form);
      form.Offset = offset;
    };
  };
  AddClient("Ravi Kumar", "1990-07-05 14:30:20", at("pune", "5.5"));
  AddClient("Zo\xC3\xAB", "1990-07-05 01:10", at("new york city", "-4"));
  AddClient("Jo\xC3\xA3o  da Silva", "1990-01-15 23:59", at("sao paulo", "-2"));
  AddClient("Bruce", "1990-01-15 12:00", at("sydney", "11"));
  AddClient("Albert Einstein", "1879-03-14 11:30", at("ulm", "0.6667"));
  AddClient("Old", "1500-02-28 12:00", at("london", "-0.0083"));
  AddClient("Double Summer", "1944-07-15 12:00", at("london", "2"));
  AddClient("A word *", "1990-07-05 12:00", at("pune", "6.25"));
  AddClient("*", "1990-07-05 12:00", [&](auto& form) {
    at("pune", "5.5")(form);
    form.Latitude = "18.51667";
    form.Longitude = "73.85";
    form.Gender = "O";
    form.Comments = "one, two\n\n #A93:x\n";
  });
  const std::string csv = practice::ClientsAsCsv(*session_, std::nullopt);
  const std::string aaf = AllAsAaf();
  EXPECT_NE(aaf.find("#A93:Kumar,Ravi,m,5.7.1990,14:30:20,Pune,IN\r\n#B93:2448077.87523,"),
            std::string::npos)
      << aaf;
  EXPECT_NE(aaf.find(",5hW00,1\r\n#ZNAM:America/New_York\r\n"), std::string::npos) << aaf;
  EXPECT_NE(aaf.find(",0hE00,2\r\n"), std::string::npos) << aaf;
  EXPECT_NE(aaf.find("28.2.1500g"), std::string::npos) << aaf;
  const ImportPlan again = PlanOf(aaf);
  EXPECT_TRUE(again.Refused.empty()) << again.Refused.at(0).Reason;
  EXPECT_EQ(again.StoredCount(), 9U);
  EXPECT_EQ(Save(again), 0U);  // a second import changes nothing
  session_->StoreConnection.Execute("Delete from client_planets");
  session_->StoreConnection.Execute("Delete from client_master");
  EXPECT_EQ(Save(PlanOf(aaf)), 9U);
  EXPECT_EQ(practice::ClientsAsCsv(*session_, std::nullopt),
            core::ReplaceAll(csv, "\n*,", "\n**,"));  // a star alone is the one name that changes
}

// A planet there may have no rashi house; the import writes the rows that the dialog writes.
TEST_F(Exchange, ABirthInTheFarNorthIsSavedAsTheDialogSavesIt) {
  AddClient("Far North", "1971-06-18 00:19", [](auto& form) {
    form.Latitude = "60.12";
    form.Longitude = "20";
    form.Offset = "0";
  });
  ASSERT_EQ(Save(PlanOf("#A93:North,Far,m,18.6.1971,0:19:30,*,*\n#B93:*,60N07:12,20E00,0hE00,0\n")),
            1U);
  const std::string rows =
      "select planetid, rashihouse, chalithouse, degree, starlord, sublord, inretro from "
      "client_planets where clientid = ";
  EXPECT_EQ(Count("client_planets where clientid = 1 and rashihouse is null"), 1);
  EXPECT_EQ(Count("client_planets where clientid = 2"), 9);
  EXPECT_EQ(Count("(" + rows + "1 except " + rows + "2)"), 0);
}

TEST_F(Exchange, WhatTheFormatCannotHoldIsToldInAComment) {
  AddClient("Smith, John", "2020-02-29 12:00", [](auto& form) {
    form.Horary = true;
    form.HoraryNumber = "147";
    form.HoraryQuestion = "Will it\nrain, soon?";
    form.Comments = "kept";
    form.Latitude = "25.0772512";
  });
  AddClient("By Hand", "2020-02-29 12:00", [](auto& form) {
    form.AscendantByHand = true;
    form.AscendantDegree = "123.45";
  });
  AddClient("Beyond the Pole", "2020-02-29 12:00", [](auto& form) { form.Latitude = "91"; });
  const std::string aaf = AllAsAaf();
  EXPECT_NE(aaf.find("#COM:Horary number 147: Will it rain, soon?\r\n#COM:kept\r\n"),
            std::string::npos)
      << aaf;
  EXPECT_NE(aaf.find("#A93:John,Smith;,m,"), std::string::npos) << aaf;
  EXPECT_NE(aaf.find("#COM:Ascendant by hand: 123.45\r\n"), std::string::npos) << aaf;
  EXPECT_NE(aaf.find(",*,55E18:33,4hE00,0"), std::string::npos) << aaf;
  const ImportPlan plan = PlanOf(aaf.substr(0, aaf.find("#A93:Hand")));
  EXPECT_EQ(plan.StoredCount(), 1U);  // the query is not added again as a birth
  const std::filesystem::path file = home_.Place.Folder / "out.aaf";
  EXPECT_FALSE(ExportAaf(*session_, {1, 1, 99, 2, 3}, file, GoOn));
  EXPECT_EQ(test::ReadFile(file), aaf);
  struct ::stat facts = {};
  ASSERT_EQ(::stat(file.c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777U, 0600U);
  EXPECT_FALSE(ExportAaf(*session_, {1}, file, [](auto, auto) { return false; }));
  EXPECT_EQ(test::ReadFile(file), aaf);  // canceled
  EXPECT_EQ(ExportAaf(*session_, {1}, "/nowhere/out.aaf", GoOn)->Text,
            "The file /nowhere/out.aaf could not be written.");
}

// A CSV file stands beside the others in one plan: the same rows, the same all or nothing.
TEST_F(Exchange, CsvIsPlannedWithTheOthersAndKeepsWhatTheyCannotHold) {
  ASSERT_FALSE(practice::AddGroup(*session_, "Family").Refused);
  const auto csv = Write("b.csv",
                         "name,birth,city id,offset,horary,question,ascendant,group\n"
                         "Query,1990-07-05 14:30,1,9.5,147,Rain?,,family\n"
                         "Hand,1990-07-05 14:30,1,,,,12.5,\n"
                         "Bad,never,1,,,,,\n"
                         "Short,1990-07-05 14:30,1\n");
  const ImportSource source{
      {Write("a.aaf", Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,5hE30,0")), csv},
      1,
      test::DataFolder()};
  const ImportPlan plan = PlanImport(*session_, source, GoOn);
  ASSERT_EQ(plan.Births.size(), 3U);
  ASSERT_EQ(plan.Refused.size(), 2U);
  EXPECT_EQ(plan.Refused[0].File, "b.csv");
  EXPECT_EQ(plan.Refused[0].Line, 4U);
  EXPECT_EQ(plan.Refused[1].Reason, "the line has not as many fields as the first one");
  EXPECT_EQ(plan.Births[1].Clock.OffsetInFile + " " + plan.Births[1].Clock.OffsetOfClocks,
            "9.5 5.5");
  EXPECT_FALSE(plan.Births[1].Clock.AgreesWithClocks);
  EXPECT_TRUE(plan.Births[2].Clock.AgreesWithClocks);
  EXPECT_EQ(PlanText(plan), "3 new, 0 already stored, 2 refused");
  EXPECT_EQ(Save(plan), 0U);
  EXPECT_EQ(Save(plan, WithRefused::LeaveOut), 3U);
  EXPECT_EQ(
      Count("client_master where horaryno = 147 and horaryquestion = 'Rain?' and groupid = 2"), 1);
  EXPECT_EQ(Count("client_master where ascdegreetype = 'M' and groupid = 1"), 1);
  EXPECT_EQ(PlanImport(*session_, source, GoOn).StoredCount(), 3U);
  EXPECT_THROW(Plan(Write("c.csv", "name,birth\nA,1990-07-05 14:30\n")), std::runtime_error);
  EXPECT_THROW(Plan(Write("d.csv", "")), std::runtime_error);
  EXPECT_TRUE(IsImportSource(csv));
  EXPECT_FALSE(IsImportSource(Write("e.txt", "text")));
  EXPECT_FALSE(IsCsvFile(Write("f.csv", "#A93:")));
}

TEST_F(Exchange, WhatGoesOutIsOfTheChosenClientsAndNeverOneOfTheProgramsFiles) {
  ASSERT_FALSE(practice::AddGroup(*session_, "Empty").Refused);
  AddClient("Asha", "1990-07-05 14:30", [](auto& /*form*/) {});
  AddClient("Ravi", "1990-07-06 14:30", [](auto& /*form*/) {});
  core::Table found{{{"Name"}}, {}};
  found.AddRow().Tag = "2";
  const auto file = home_.Place.Folder / "out";
  const auto out = [&](const ExportRequest& request) {
    std::filesystem::remove(file);
    const auto refused = ExportClients(*session_, request, file, GoOn);
    return refused ? refused->Text : test::ReadFile(file);
  };
  const auto holds = [](const std::string& text, const char* name) {
    return text.find(name) != std::string::npos;
  };
  const std::string one = out({ExportedClients::One, ExportFormat::Aaf, 1, {}, "Asha"});
  EXPECT_TRUE(holds(one, "#A93:Asha") && !holds(one, "Ravi")) << one;
  const std::string searched = out({ExportedClients::Found, ExportFormat::Aaf, 0, found, "Found"});
  EXPECT_TRUE(holds(searched, "#A93:Ravi") && !holds(searched, "Asha")) << searched;
  const std::string csv = out({ExportedClients::Group, ExportFormat::Csv, 1, {}, "General"});
  EXPECT_EQ(csv, practice::ClientsAsCsv(*session_, 1));
  EXPECT_TRUE(holds(out({ExportedClients::All, ExportFormat::Spreadsheet, 0, {}, "All"}), "PK"));
  EXPECT_EQ(out({ExportedClients::Group, ExportFormat::Csv, 2, {}, "Empty"}),
            "There are no clients in it.");
  EXPECT_FALSE(std::filesystem::exists(file));
  const std::string store = test::ReadFile(home_.Place.StoreFile());
  for (const ExportFormat format :
       {ExportFormat::Aaf, ExportFormat::Csv, ExportFormat::Spreadsheet}) {
    EXPECT_TRUE(ExportClients(*session_, {ExportedClients::All, format, 0, {}, "All"},
                              home_.Place.StoreFile(), GoOn));
  }
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), store);
  EXPECT_EQ(ExportFileName("../A/B", ExportFormat::Aaf), "-A-B.aaf");
  EXPECT_EQ(ExportFileName("..", ExportFormat::Csv), "Clients.csv");
}

TEST_F(Exchange, ThePreviewMarksOffsetsThatTheClocksDidNotShow) {
  const core::Table table =
      PreviewTable(PlanOf(Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,5hE00,0") +
                          Birth("5.7.1990,14:30", "Pune,IN", "*,18N31,73E51,*,*") +
                          Birth("28.10.1990,1:30", "New York City,US", "*,40N43,74W00,5hW00,0")));
  ASSERT_EQ(table.Rows.size(), 3U);
  EXPECT_EQ(table.At(0, PreviewColumn::Name).Text, "The Client");
  EXPECT_EQ(table.At(0, PreviewColumn::Birth).Text, "5 Jul 1990 02:30:00 PM");
  EXPECT_EQ(table.At(0, PreviewColumn::City).Text, "Pune, IN");
  EXPECT_EQ(table.At(0, PreviewColumn::OffsetInFile).Text, "5");
  EXPECT_EQ(table.At(0, PreviewColumn::OffsetOfClocks).Text, "5.5");
  EXPECT_EQ(table.At(0, PreviewColumn::OffsetInFile).Background, "FACACA");
  EXPECT_EQ(table.At(0, PreviewColumn::OffsetOfClocks).Background, "FACACA");
  EXPECT_TRUE(table.At(0, PreviewColumn::OffsetOfClocks).Bold);
  EXPECT_EQ(table.At(0, PreviewColumn::State).Text, "new");
  EXPECT_EQ(table.At(1, PreviewColumn::OffsetInFile).Text, "");
  EXPECT_EQ(table.At(1, PreviewColumn::OffsetOfClocks).Background, "");
  EXPECT_EQ(table.At(2, PreviewColumn::OffsetInFile).Background, "");  // the hour came twice
  EXPECT_EQ(table.At(2, PreviewColumn::Line).Text, "5");
}

}  // namespace
}  // namespace orvex::exchange
