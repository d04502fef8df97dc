#include <algorithm>

#include "chart/chart_moment.h"
#include "chart/instant_chart.h"
#include "core/exact_numbers.h"
#include "practice/birthdays.h"
#include "practice/cities.h"
#include "practice/client_list.h"
#include "practice/deleted_client.h"
#include "practice/groups.h"
#include "practice/records_home.h"
#include "practice/remedies.h"

namespace orvex::practice {
namespace {

TEST_F(RecordsTest, ADeletedClientComesBackWithItsGroupOrToTheOneOfThatName) {
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

TEST_F(RecordsTest, BirthdaysAreThoseOfEarlierYearsAndOfBirths) {
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

TEST_F(RecordsTest, EachRefusalOfListsGroupsAndRemediesReadsWordForWord) {
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

TEST_F(RecordsTest, AClientGoesWithPlanetsAndRemediesAndIsInTheBackup) {
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

TEST_F(RecordsTest, AnInstantChartIsAClientOfTheMomentAtTheUserCity) {
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

}  // namespace
}  // namespace orvex::practice
