#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "core/text.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

class ListScopes : public testing::Test {
 protected:
  std::int32_t Add(const std::string& name, std::int32_t group) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = name;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return chart::SaveNewClient(*session_, form, group).Id;
  }

  static std::string Texts(const core::Table& table) {
    std::vector<std::string> texts;
    for (const core::Row& row : table.Rows) {
      texts.push_back(row.Cells.at(0).Text + ":" + row.Cells.at(1).Text + ":" + row.Tag);
    }
    return core::Join(texts, " ");
  }

  std::string Recent(const std::vector<std::int32_t>& opened) const {
    std::string names;
    for (const core::Row& row : LoadRecentClients(*session_, opened).Rows) {
      names += row.Cells.front().Text;
    }
    return names;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(ListScopes, GroupsStandBelowAllAndRecentWithTheirCounts) {
  EXPECT_EQ(Texts(LoadGroupsWithCounts(*session_)), "All clients:0:-1 Recent::-2 General:0:1");
  const std::int32_t family = AddGroup(*session_, "Family").Id;
  Add("A", 1);
  Add("B", family);
  Add("C", family);
  EXPECT_EQ(Texts(LoadGroupsWithCounts(*session_)),
            "All clients:3:-1 Recent::-2 Family:2:2 General:1:1");
  session_->StoreConnection.Execute("Delete from group_master");
  EXPECT_EQ(Texts(LoadGroupsWithCounts(*session_)), "");
}

TEST_F(ListScopes, RecentAreTheLastOpenedThenTheLastAdded) {
  EXPECT_EQ(Recent({}), "");
  std::vector<std::int32_t> ids;
  for (char name = 'A'; name < 'A' + 23; ++name) {
    ids.push_back(Add(std::string(1, name), 1));
  }
  EXPECT_EQ(Recent({}), "WVUTSRQPONMLKJIHGFED");
  EXPECT_EQ(Recent({ids[0], ids[21], ids[1], ids[0]}), "ABVWUTSRQPONMLKJIHGF");
  session_->StoreConnection.Execute("Delete from client_master where fullname = 'A'");
  EXPECT_EQ(Recent({ids[1], ids[0]}).substr(0, 3), "BWV");
}

}  // namespace
}  // namespace orvex::practice
