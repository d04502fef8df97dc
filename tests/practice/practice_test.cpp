#include <gtest/gtest.h>

#include <functional>

#include "chart/client_saving.h"
#include "practice/cities.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "practice/zone_clock.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

class Practice : public testing::Test {
 protected:
  void AddClient(const std::string& name, std::int32_t groupId) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = name;
    EXPECT_FALSE(chart::SaveNewClient(*session_, form, groupId).Refused);
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
  }

  std::int64_t Count(const std::string& rows) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(Practice, EachCityCheckRefusesInItsTurn) {
  const CityForm good{"L'Aquila 100%", "Europe/Rome", "-27", "42.35", "13.4"};
  const std::pair<const char*, std::function<void(CityForm&)>> faults[] = {
      {"City Name is a mandatory field.", [](CityForm& f) { f.CityName = " "; }},
      {"City Name cannot exceed 100 characters.",
       [](CityForm& f) { f.CityName = std::string(101, 'x'); }},
      {"Please select a Time Zone from the list.", [](CityForm& f) { f.TimeZone = ""; }},
      {"Latitude is a mandatory field.", [](CityForm& f) { f.Latitude = ""; }},
      {"Latitude is a numeric field.", [](CityForm& f) { f.Latitude = "north"; }},
      {"Longitude is a mandatory field.", [](CityForm& f) { f.Longitude = " "; }},
      {"Longitude is a numeric field.", [](CityForm& f) { f.Longitude = "0x1"; }},
      {"Please enter a numeric value.", [](CityForm& f) { f.Offset = ""; }},
      {"Incorrect Offset Value entered.", [](CityForm& f) { f.Offset = "-27.1"; }}};
  CityForm broken = good;
  for (auto fault = std::rbegin(faults); fault != std::rend(faults); ++fault) {
    fault->second(broken);  // with all later faults in it
    EXPECT_EQ(SaveNewCity(*session_, broken).Refused->Text, fault->first);
  }
  EXPECT_EQ(Count("city_master"), 50390);
  const core::SaveResult saved = SaveNewCity(*session_, good);
  ASSERT_FALSE(saved.Refused);
  EXPECT_EQ(SearchCities(*session_, "L'Aquila 1").Rows.at(0).Cells[0].Tag,
            std::to_string(saved.Id));
  std::optional<CityForm> edited = OpenEditCity(*session_, saved.Id);
  ASSERT_TRUE(edited);
  edited->CityName = "Renamed";
  edited->TimeZone = "";
  ASSERT_FALSE(SaveCityChanges(*session_, *edited, saved.Id).Refused);
  EXPECT_EQ(OpenEditCity(*session_, saved.Id)->TimeZone, "Europe/Rome");
  EXPECT_FALSE(OpenEditCity(*session_, 999999));
}

TEST_F(Practice, TheFarthestOffsetsAreTakenAndWildcardsSearchAsTyped) {
  for (const char* offset : {"27", "-27"}) {
    const CityForm form{"Far 100% east", "Europe/Rome", offset, "1e3", "-.5"};  // no range test
    const core::SaveResult saved = SaveNewCity(*session_, form);
    ASSERT_FALSE(saved.Refused) << offset;
    EXPECT_EQ(OpenEditCity(*session_, saved.Id)->Offset, offset);
  }
  EXPECT_EQ(SearchCities(*session_, "far 1%EAST").Rows.size(), 2U);
  EXPECT_TRUE(SearchCities(*session_, "%' or 'a' like '").Rows.empty());
}

TEST_F(Practice, AStoreThatRefusesTheWriteIsReported) {
  const CityForm city{"City", "Europe/Rome", "1", "1", "1"};
  for (const char* event :
       {"insert on city_master", "update on city_master", "insert on group_master",
        "update on group_master", "delete on group_master"}) {
    session_->StoreConnection.ExecuteScript(std::string("create trigger \"refuse ") + event +
                                            "\" before " + event +
                                            " begin select raise(abort, 'refused'); end");
  }
  const core::SaveResult results[] = {
      SaveNewCity(*session_, city), SaveCityChanges(*session_, city, 19),
      AddGroup(*session_, "New"), RenameGroup(*session_, 1, "New"), DeleteGroup(*session_, 1)};
  for (const core::SaveResult& result : results) {
    ASSERT_TRUE(result.Refused);
    EXPECT_EQ(result.Refused->Text, "Could not update database.");
  }
  EXPECT_EQ(LoadGroups(*session_).Rows.at(0).Cells[0].Text, "General");
}

TEST_F(Practice, NoCityIsAddedWithoutZones) {
  EXPECT_TRUE(OpenAddCity(*session_));
  session_->StoreConnection.Execute("Delete from timezone_master");
  EXPECT_FALSE(OpenAddCity(*session_));
  EXPECT_EQ(home_.Messages.All().back().Text, "Cannot add a City.");
}

TEST_F(Practice, ACityWithoutItsZoneIsInNoList) {
  AddClient("Somewhere", 1);
  EXPECT_EQ(PreviouslyUsedCities(*session_).Rows.size(), 1U);
  session_->StoreConnection.Execute("Update city_master set timezone = 'No/Where' where id = 19");
  EXPECT_EQ(LoadCities(*session_).Rows.size(), 50389U);
  EXPECT_TRUE(SearchCities(*session_, "Dubai").Rows.empty() ||
              SearchCities(*session_, "Dubai").Rows[0].Cells[0].Tag != "19");
  EXPECT_TRUE(PreviouslyUsedCities(*session_).Rows.empty());
  EXPECT_EQ(LoadTimeZones(*session_).Rows.size(),
            static_cast<std::size_t>(Count("timezone_master")));
}

TEST_F(Practice, GroupNamesAreCheckedAndTakenOnceInAnyCase) {
  const std::pair<std::string, const char*> refused[] = {
      {"  ", "Group Name is a mandatory field."},
      {std::string(21, 'x'), "Group Name cannot exceed 20 characters."},
      {"gENERAL", "The Group 'gENERAL' already exists in the database."}};
  for (const auto& [name, text] : refused) {
    EXPECT_EQ(AddGroup(*session_, name).Refused->Text, text);
  }
  const core::SaveResult added = AddGroup(*session_, " O'Neil's twenty char ");
  ASSERT_FALSE(added.Refused);
  EXPECT_EQ(RenameGroup(*session_, 1, "o'neil's TWENTY char").Refused->Text,
            "The Group 'o'neil's TWENTY char' already exists in the database.");
  EXPECT_FALSE(RenameGroup(*session_, added.Id, "O'NEIL'S twenty char").Refused);
  EXPECT_EQ(RenameGroup(*session_, 55, "x").Refused->Text,
            "The record you are trying to edit could not be retrieved.");
  EXPECT_EQ(LoadGroups(*session_).Rows.size(), 2U);
  ASSERT_FALSE(AddGroup(*session_, "\xC3\x89lite").Refused);
  EXPECT_TRUE(AddGroup(*session_, "\xC3\xA9LITE").Refused);
  EXPECT_FALSE(AddGroup(*session_, "Elite").Refused);  // another letter
}

TEST_F(Practice, AGroupGoesWithItsClientsAndHandsOnTheInstantCharts) {
  const std::int32_t other = AddGroup(*session_, "Other").Id;
  AddClient("Goes", 1);
  AddClient("Stays", other);
  session_->State.OpenHoroscopes = {1};
  EXPECT_EQ(DeleteGroup(*session_, 1).Refused->Text,
            "Can't delete a Group when one or more Horoscopes are open.");
  session_->State.OpenHoroscopes.clear();
  ASSERT_FALSE(DeleteGroup(*session_, 1).Refused);
  EXPECT_EQ(Count("client_master"), 1);
  EXPECT_EQ(Count("client_planets"), 9);
  EXPECT_EQ(session_->State.InstantChartGroupName, "Other");
  EXPECT_EQ(Count("settings where ICGroupID = " + std::to_string(other)), 1);
  ASSERT_FALSE(DeleteGroup(*session_, other).Refused);
  EXPECT_EQ(session_->State.InstantChartGroupId, 0);
  EXPECT_EQ(Count("settings where ICGroupID = " + std::to_string(other)), 1);
  EXPECT_EQ(Count("client_planets"), 0);
}

TEST_F(Practice, TheClientListFollowsTheSortOfTheSettings) {
  AddClient("b", 1);
  AddClient("a", 1);
  EXPECT_EQ(LoadClientsOfGroup(*session_, 1).Rows.at(0).Cells[0].Text, "a");
  session_->State.SortColumn = core::SortColumnOfCode("CRD");
  const core::Table list = LoadClientsOfGroup(*session_, std::nullopt);
  EXPECT_EQ(list.Rows.at(0).Cells[0].Text, "b");
  EXPECT_EQ(list.At(0, ClientColumn::City).Tooltip, "Lat: 25.07725 | Lon: 55.30927 | Off: 4");
  EXPECT_EQ(list.At(0, ClientColumn::BirthDate).Text, "24 November 2026");
  EXPECT_TRUE(LoadClientsOfGroup(*session_, 2).Rows.empty());
}

TEST_F(Practice, RemediesAreCheckedKeptAndDeleted) {
  AddClient("Patient", 1);
  const RemedyForm good{2, "It's 100% bad", std::string(1000, 'x'), test::Moment("2026-11-20")};
  const std::pair<const char*, std::function<void(RemedyForm&)>> faults[] = {
      {"Problem/Symptom is a mandatory field.", [](RemedyForm& f) { f.Problem = " "; }},
      {"Text cannot exceed more than 1000 characters.",
       [](RemedyForm& f) { f.Problem = std::string(1001, 'x'); }},
      {"Remedy/Solution is a mandatory field.", [](RemedyForm& f) { f.Remedy = ""; }},
      {"Text cannot exceed more than 1000 characters.",
       [](RemedyForm& f) { f.Remedy = std::string(1001, 'x'); }}};
  RemedyForm broken = good;
  for (auto fault = std::rbegin(faults); fault != std::rend(faults); ++fault) {
    fault->second(broken);
    EXPECT_EQ(SaveNewRemedy(*session_, broken, 1).Refused->Text, fault->first);
  }
  EXPECT_TRUE(SaveNewRemedy(*session_, good, 55).Refused);
  const std::int32_t id = SaveNewRemedy(*session_, good, 1).Id;
  RemedyForm earlier = good;
  earlier.PlanetId = 0;
  earlier.Date = test::Moment("2026-11-01");
  ASSERT_FALSE(SaveNewRemedy(*session_, earlier, 1).Refused);
  const core::Table list = LoadRemedies(*session_, 1);
  ASSERT_EQ(list.Rows.size(), 2U);
  EXPECT_EQ(list.At(0, RemedyColumn::ForPlanet).Text, "None");
  EXPECT_EQ(list.At(1, RemedyColumn::ForPlanet).Text, "Moon");
  EXPECT_EQ(list.At(1, RemedyColumn::Problem).Text, "It's 100% bad");
  EXPECT_EQ(list.At(1, RemedyColumn::RemedyDate).Text, "20 November 2026");
  RemedyForm edited = OpenEditRemedy(*session_, id).value();
  edited.PlanetId = 77;
  ASSERT_FALSE(SaveRemedyChanges(*session_, edited, id).Refused);
  // A number that is no planet reads as the row before it.
  EXPECT_EQ(LoadRemedies(*session_, 1).At(1, RemedyColumn::ForPlanet).Text, "None");
  ASSERT_FALSE(DeleteRemedy(*session_, id).Refused);
  EXPECT_TRUE(DeleteRemedy(*session_, id).Refused);
  EXPECT_FALSE(OpenEditRemedy(*session_, id));
}

TEST(ZoneClock, ClocksOfKnownDates) {
  struct {
    const char* zone;
    const char* local;
    const char* standard;
    const char* inForce;
    ClockReading reading;
    const char* second;
  } const cases[] = {
      {"Asia/Kolkata", "1943-05-05 10:00", "5.5", "6.5", ClockReading::Plain, ""},
      {"Asia/Kolkata", "1990-07-05 14:30", "5.5", "5.5", ClockReading::Plain, ""},
      {"America/New_York", "1985-07-10 10:00", "-5", "-4", ClockReading::Plain, ""},
      {"Europe/London", "1968-12-25 10:00", "1", "1", ClockReading::Plain, ""},
      {"Europe/London", "1968-07-01 10:00", "0", "1", ClockReading::Plain, ""},
      {"Asia/Kathmandu", "1980-01-01 10:00", "5.5", "5.5", ClockReading::Plain, ""},
      {"Asia/Kathmandu", "1990-01-01 10:00", "5.75", "5.75", ClockReading::Plain, ""},
      {"America/New_York", "2021-03-14 02:30", "-5", "-5", ClockReading::Skipped, "-4"},
      {"America/New_York", "2021-11-07 01:30", "-5", "-4", ClockReading::Twice, "-5"},
      {"Europe/London", "1947-06-01 10:00", "0", "2", ClockReading::Plain, ""},
      {"Europe/Moscow", "1991-07-01 10:00", "2", "3", ClockReading::Plain, ""},
      {"Europe/Paris", "1941-07-01 10:00", "1", "2", ClockReading::Plain, ""},
      {"America/Indiana/Tell_City", "1969-07-27 10:00", "-5", "-4", ClockReading::Plain, ""},
      {"Australia/Lord_Howe", "2020-01-01 10:00", "10.5", "11", ClockReading::Plain, ""},
      {"Europe/Moscow", "2040-02-29 10:00", "3", "3", ClockReading::Plain, ""},
      {"Europe/Istanbul", "2040-01-15 10:00", "3", "3", ClockReading::Plain, ""},
      {"America/New_York", "2040-03-11 02:30", "-5", "-5", ClockReading::Skipped, "-4"},
      {"America/New_York", "2055-07-10 10:00", "-5", "-4", ClockReading::Plain, ""},
      {"Europe/Berlin", "9999-07-10 10:00", "1", "2", ClockReading::Plain, ""},
  };
  for (const auto& c : cases) {
    const ZoneClock clock = ClocksOf(c.zone, test::Moment(c.local), 0);
    EXPECT_EQ(OffsetText(clock.StandardOffset), c.standard) << c.zone << c.local;
    EXPECT_EQ(OffsetText(clock.OffsetInForce), c.inForce) << c.zone << c.local;
    EXPECT_EQ(clock.Reading, c.reading) << c.zone << c.local;
    EXPECT_EQ(clock.SecondOffset ? OffsetText(*clock.SecondOffset) : "", c.second);
    EXPECT_EQ(ReadingText(clock).empty(), c.reading == ClockReading::Plain);
  }
}

TEST(ZoneClock, BeforeStandardTimeEveryPlaceKeptItsOwnMeanTime) {
  const std::pair<double, const char*> cases[] = {
      {72.88261, "4.8589"}, {88.36, "5.8906"}, {-74.00597, "-4.9336"}, {0, "0"}};
  for (const auto& [longitude, offset] : cases) {
    const ZoneClock clock = ClocksOf("Asia/Kolkata", test::Moment("1850-01-01"), longitude);
    EXPECT_EQ(clock.Reading, ClockReading::LocalMeanTime);
    EXPECT_EQ(OffsetText(clock.OffsetInForce), offset);
  }
  EXPECT_THROW(ClocksOf("Mars/Base", test::Moment("2000-01-01"), 0), ZoneError);
}

}  // namespace
}  // namespace orvex::practice
