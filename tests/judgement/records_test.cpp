// Matters and life events as records.
#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "core/text.h"
#include "judgement/life_events.h"
#include "judgement/matters.h"
#include "practice/client_list.h"
#include "practice/deleted_client.h"
#include "practice/groups.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

class JudgementRecords : public testing::Test {
 protected:
  std::int32_t AddClient() {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Client";
    form.Birth = test::Moment("1990-07-05 14:30");
    chart::SelectCity(*session_, 1, form);
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  std::int32_t AddEvent(std::int32_t client, const char* date, std::int32_t matter,
                        const std::string& remark = "") {
    return SaveNewEvent(*session_, {test::Moment(date), matter, remark}, client).Id;
  }

  std::string EventsText(std::int32_t client) const {
    std::string text;
    for (const core::Row& row : LoadEvents(*session_, client).Rows) {
      text += row.Tag + ":" + row.Cells[0].Text + "," + row.Cells[1].Text + "," +
              row.Cells[2].Text + ";";
    }
    return text;
  }

  static std::string Text(const core::SaveResult& result) {
    return result.Refused ? result.Refused->Field + ": " + result.Refused->Text : "";
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(JudgementRecords, TheShippedMattersAreWholeAndFoundByNameAndId) {
  const core::Table matters = LoadMatters(*session_);
  ASSERT_GE(matters.Rows.size(), 15U);
  for (const core::Row& row : matters.Rows) {
    EXPECT_FALSE(row.Cells.back().Text.empty()) << row.Cells.front().Text << " has no source";
    MatterForm form = OpenEditMatter(*session_, std::stoi(row.Tag)).value();
    EXPECT_EQ(Text(SaveMatterChanges(*session_, form, std::stoi(row.Tag))), "") << form.Name;
  }
  EXPECT_EQ(HousesText(FindMatter(*session_, " marriage ").value()), "7 | 2 11 | 1 6 10");
  EXPECT_EQ(FindMatter(*session_, "1")->Name, "Marriage");
  EXPECT_FALSE(FindMatter(*session_, "x' or '1' = '1"));
  EXPECT_FALSE(FindMatter(*session_, ""));
}

TEST_F(JudgementRecords, AMatterIsSavedAscendingAndRefusedFieldByField) {
  const core::SaveResult saved =
      SaveNewMatter(*session_, {" O'Neil's \xC3\x89lan ", "3", "11, 9", "12 2 8", "School"});
  ASSERT_EQ(Text(saved), "");
  EXPECT_EQ(HousesText(MatterOfId(*session_, saved.Id).value()), "3 | 9 11 | 2 8 12");
  EXPECT_EQ(MatterOfId(*session_, saved.Id)->Name, "O'Neil's \xC3\x89lan");
  const std::string fifty(50, 'x');
  const struct {
    MatterForm Form;
    const char* Refused;
  } cases[] = {
      {{" ", "7", "", "", ""}, "matterName: Matter Name is a mandatory field."},
      {{fifty + "x", "7", "", "", ""}, "matterName: Matter Name cannot exceed 50 characters."},
      {{"12", "7", "", "", ""}, "matterName: Matter Name cannot be a mere number."},
      {{"MARRIAGE", "7", "", "", ""},
       "matterName: The Matter 'MARRIAGE' already exists in the database."},
      {{"o'neil's \xC3\xA9lan", "7", "", "", ""},
       "matterName: The Matter 'o'neil's \xC3\xA9lan' already exists in the database."},
      {{"A", "", "", "", ""}, "mainCusp: Main Cusp takes one house from 1 to 12."},
      {{"A", "13", "", "", ""}, "mainCusp: Main Cusp takes one house from 1 to 12."},
      {{"A", "0", "", "", ""}, "mainCusp: Main Cusp takes one house from 1 to 12."},
      {{"A", "7 8", "", "", ""}, "mainCusp: Main Cusp takes one house from 1 to 12."},
      {{"A", "+7", "", "", ""}, "mainCusp: Main Cusp takes one house from 1 to 12."},
      {{"A", "7", "2 two", "", ""},
       "supporting: Supporting takes houses from 1 to 12, each once, with blanks between them."},
      {{"A", "7", "2 2", "", ""},
       "supporting: Supporting takes houses from 1 to 12, each once, with blanks between them."},
      {{"A", "7", "2", "1 13", ""},
       "denying: Denying takes houses from 1 to 12, each once, with blanks between them."},
      {{"A", "7", "2 7", "", ""}, "supporting: House 7 stands in two lists of the Matter."},
      {{"A", "7", "2", "7", ""}, "denying: House 7 stands in two lists of the Matter."},
      {{"A", "7", "2", "2", ""}, "denying: House 2 stands in two lists of the Matter."},
      {{"A", "7", "", "", fifty + fifty + "x"}, "source: Source cannot exceed 100 characters."},
      {{fifty, "7", "", "", fifty + fifty}, ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(Text(SaveNewMatter(*session_, c.Form)), c.Refused);
  }
}

TEST_F(JudgementRecords, AMatterKeepsItsOwnNameAndIsDeletedOnlyWhenNoEventNamesIt) {
  MatterForm form = OpenEditMatter(*session_, 1).value();
  form.Name = "marriage";
  form.Denying = "6";
  EXPECT_EQ(Text(SaveMatterChanges(*session_, form, 1)), "");
  EXPECT_EQ(HousesText(MatterOfId(*session_, 1).value()), "7 | 2 11 | 6");
  form.Name = "Child";
  EXPECT_NE(Text(SaveMatterChanges(*session_, form, 1)), "");
  EXPECT_NE(Text(SaveMatterChanges(*session_, form, 99)), "");
  const std::int32_t event = AddEvent(AddClient(), "2001-02-03", 1);
  EXPECT_EQ(Text(DeleteMatter(*session_, 1)),
            "matterList: Life events of clients name this Matter; change or delete them first.");
  EXPECT_EQ(Text(DeleteEvent(*session_, event)), "");
  EXPECT_EQ(Text(DeleteMatter(*session_, 1)), "");
  EXPECT_NE(Text(DeleteMatter(*session_, 1)), "");
  // A shipped row that was deleted does not come back.
  session_.reset();
  session_ = home_.Start();
  EXPECT_FALSE(MatterOfId(*session_, 1));
}

TEST_F(JudgementRecords, AnOldStoreGetsTheMattersOnce) {
  session_->StoreConnection.ExecuteScript(
      "drop table matter_master; drop table client_event; pragma user_version = 3;");
  session_.reset();
  session_ = home_.Start();
  EXPECT_EQ(FindMatter(*session_, "Lost thing found")->MainCusp, 2);
  EXPECT_EQ(EventsText(1), "");
}

TEST_F(JudgementRecords, EventsStandByDateAndAreCheckedAndChanged) {
  const std::int32_t client = AddClient();
  AddEvent(client, "2005-10-20 18:30", 8, "it's a girl");
  const std::int32_t second = AddEvent(client, "2003-02-11", 1);
  AddEvent(AddClient(), "1999-01-01", 3);
  EXPECT_EQ(EventsText(client),
            "2:11 February 2003,Marriage,;1:20 October 2005,Child,it's a girl;");
  EXPECT_EQ(EventsOfClient(*session_, client).back().Date, test::Moment("2005-10-20"));
  EXPECT_EQ(Text(SaveNewEvent(*session_, {test::Moment("2000-01-01"), 99, ""}, client)),
            "matter: Please select a Matter from the list.");
  EXPECT_EQ(Text(SaveNewEvent(*session_, {test::Moment("2000-01-01"), 1, ""}, 77)),
            ": There is no client with that id.");
  EXPECT_EQ(
      Text(SaveNewEvent(*session_, {test::Moment("2000-01-01"), 1, std::string(251, 'x')}, client)),
      "remark: Remark cannot exceed 250 characters.");
  EventForm form = OpenEditEvent(*session_, second).value();
  form.MatterId = 2;
  form.Remark = std::string(250, 'x');
  EXPECT_EQ(Text(SaveEventChanges(*session_, form, second)), "");
  EXPECT_EQ(EventsText(client).substr(0, 29), "2:11 February 2003,Separation");
  EXPECT_NE(Text(SaveEventChanges(*session_, form, 77)), "");
  EXPECT_EQ(Text(DeleteEvent(*session_, second)), "");
  EXPECT_NE(Text(DeleteEvent(*session_, second)), "");
}

TEST_F(JudgementRecords, EventsGoWithTheirClientAndComeBackWithIt) {
  const std::int32_t client = AddClient();
  const std::int32_t other = AddClient();
  AddEvent(client, "2003-02-11", 1, "in May");
  AddEvent(other, "2004-02-11", 3);
  const std::string before = EventsText(client);
  const practice::KeptClient kept = practice::KeepClient(*session_, client).value();
  ASSERT_FALSE(practice::DeleteClient(*session_, client).Refused);
  EXPECT_EQ(EventsText(client), "");
  EXPECT_NE(EventsText(other), "");
  ASSERT_FALSE(practice::BringBack(*session_, kept).Refused);
  EXPECT_EQ(EventsText(client), before);
  ASSERT_FALSE(practice::DeleteGroup(*session_, 1).Refused);
  EXPECT_EQ(session_->StoreConnection.Query("Select count(*) as n from client_event").Integer("n"),
            0);
}

}  // namespace
}  // namespace orvex::judgement
