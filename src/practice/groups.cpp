#include "practice/groups.h"

#include <map>

#include "core/exact_numbers.h"
#include "core/letter_case.h"
#include "core/store_write.h"
#include "core/text.h"
#include "practice/deletion.h"

namespace orvex::practice {

namespace {

using core::HasRow;
using core::LastId;
using core::Quoted;
using core::WriteBatch;

constexpr std::size_t kLongestGroupName = 20;

core::SaveResult RefuseGroup(const std::string& text, core::MessageIcon icon) {
  return {0, core::Refusal{text, icon, "groupName"}};
}

// The refusal of a name for a group; 0 stands for a new one.
std::optional<core::Refusal> CheckName(const core::Session& session, const std::string& name,
                                       std::int32_t groupId) {
  const auto refuse = [](const std::string& text) {
    return core::Refusal{text, core::MessageIcon::Information, "groupName"};
  };
  if (name.empty()) {
    return refuse("Group Name is a mandatory field.");
  }
  if (core::CharacterCount(name) > kLongestGroupName) {
    return refuse("Group Name cannot exceed 20 characters.");
  }
  for (core::Result row =
           session.StoreConnection.Query("Select id from group_master where ucase(groupname) = " +
                                         Quoted(core::UpperCaseOfAll(name)));
       !row.AtEnd(); row.Next()) {
    if (row.Integer("id") != groupId) {
      return refuse("The Group '" + name + "' already exists in the database.");
    }
  }
  return std::nullopt;
}

void DeleteClients(core::Store& store, const std::string& groupId) {
  std::vector<std::string> ids;
  for (core::Result row = store.Query("Select id from client_master where groupid = " + groupId);
       !row.AtEnd(); row.Next()) {
    ids.push_back(row.Text("id"));
  }
  if (ids.empty()) {
    return;
  }
  const std::string list = core::Join(ids, ",");
  store.Execute("Delete from client_remedy where clientid in (" + list + ")");
  store.Execute("Delete from client_event where clientid in (" + list + ")");
  store.Execute("Delete from client_planets where clientid in (" + list + ")");
  store.Execute("Delete from client_master where groupid = " + groupId);
}

// With no group left the settings keep the old id and the state has none.
void ReplaceInstantChartGroup(core::Session& session) {
  core::ApplicationState& state = session.State;
  const core::Result first =
      session.StoreConnection.Query("Select top 1 id, groupname from group_master order by id");
  if (first.AtEnd()) {
    state.InstantChartGroupId = 0;
    state.InstantChartGroupName.clear();
    return;
  }
  state.InstantChartGroupId = static_cast<std::int32_t>(first.Integer("id"));
  state.InstantChartGroupName = first.Text("groupname");
  session.StoreConnection.Execute("Update settings set ICGroupID = " + first.Text("id"));
}

}  // namespace

core::Table LoadGroups(const core::Session& session) {
  core::Table table{{{"Group"}}, {}};
  for (core::Result row = session.StoreConnection.Query(
           "Select id, groupname from group_master order by groupname collate names");
       !row.AtEnd(); row.Next()) {
    core::Row& added = table.AddRow();
    added.Tag = row.Text("id");
    added.Cells.front().Text = row.Text("groupname");
  }
  return table;
}

core::Table LoadGroupsWithCounts(const core::Session& session) {
  std::map<std::string, std::int64_t> counts;
  std::int64_t all = 0;
  for (core::Result row = session.StoreConnection.Query(
           "Select groupid, count(id) as cnt from client_master group by groupid");
       !row.AtEnd(); row.Next()) {
    counts[row.Text("groupid")] = row.Integer("cnt");
    all += row.Integer("cnt");
  }
  core::Table table{{{"Group"}, {"Clients"}}, {}};
  const auto add = [&table](std::string tag, std::string name, std::string count) {
    core::Row& row = table.AddRow();
    row.Tag = std::move(tag);
    row.Cells.front().Text = std::move(name);
    row.Cells.back().Text = std::move(count);
  };
  const core::Table groups = LoadGroups(session);
  if (groups.Rows.empty()) {
    return table;
  }
  add(core::WholeText(kAllClients), "All clients", core::WholeText(all));
  add(core::WholeText(kRecentClients), "Recent", "");
  for (const core::Row& group : groups.Rows) {
    add(group.Tag, group.Cells.front().Text, core::WholeText(counts[group.Tag]));
  }
  return table;
}

std::int32_t GroupOfClient(const core::Session& session, std::int32_t clientId) {
  const core::Result client = session.StoreConnection.Query(
      "Select groupid from client_master where id = " + core::PaddedWhole(clientId, 1));
  return client.AtEnd() ? 0 : static_cast<std::int32_t>(client.Integer("groupid"));
}

core::SaveResult AddGroup(core::Session& session, const std::string& name) {
  const std::string trimmed = core::Trim(name);
  if (std::optional<core::Refusal> refused = CheckName(session, trimmed, 0)) {
    return {0, std::move(refused)};
  }
  return WriteBatch(session, [&trimmed](core::Store& store) {
    store.Execute("Insert into group_master (groupname) values (" + Quoted(trimmed) + ")");
    return LastId(store, "group_master");
  });
}

core::SaveResult RenameGroup(core::Session& session, std::int32_t groupId,
                             const std::string& name) {
  if (!HasRow(session.StoreConnection, "group_master", groupId)) {
    return RefuseGroup(core::kRecordGone, core::MessageIcon::Stop);
  }
  const std::string trimmed = core::Trim(name);
  if (std::optional<core::Refusal> refused = CheckName(session, trimmed, groupId)) {
    return {0, std::move(refused)};
  }
  return WriteBatch(session, [&trimmed, groupId](core::Store& store) {
    store.Execute("Update group_master set groupname = " + Quoted(trimmed) +
                  " where id = " + core::WholeText(groupId));
    return groupId;
  });
}

std::optional<core::Refusal> CheckDeleteGroup(const core::Session& session) {
  if (session.State.OpenHoroscopes.empty()) {
    return std::nullopt;
  }
  return core::Refusal{"Can't delete a Group when one or more Horoscopes are open.",
                       core::MessageIcon::Information, "groupList"};
}

std::string DeleteGroupQuestion(const core::Session& session, std::int32_t groupId) {
  const std::string id = core::WholeText(groupId);
  const auto read = [&session](const std::string& statement) -> std::string {
    const core::Result row = session.StoreConnection.Query(statement);
    return row.AtEnd() ? "" : row.Text("shown");
  };
  const std::string name = read("Select groupname as shown from group_master where id = " + id);
  const std::string clients =
      read("Select count(id) as shown from client_master where groupid = " + id);
  const std::string remedies = read(
      "Select count(cr.id) as shown from client_remedy cr, client_master cm where "
      "cr.clientid = cm.id and cm.groupid = " +
      id);
  return std::string(kDeleteGroupQuestion) + "\n\n" + name + " (clients: " + clients +
         ", remedies: " + remedies + ")";
}

std::optional<std::string> OpenEditGroup(core::Session& session, std::int32_t groupId) {
  const core::Result group = session.StoreConnection.Query(
      "Select groupname from group_master where id = " + core::WholeText(groupId));
  if (group.AtEnd()) {
    return core::TellRecordGone(session);
  }
  return group.Text("groupname");
}

core::SaveResult DeleteGroup(core::Session& session, std::int32_t groupId) {
  if (std::optional<core::Refusal> refused = CheckDeleteGroup(session)) {
    return {0, std::move(refused)};
  }
  if (!HasRow(session.StoreConnection, "group_master", groupId)) {
    return RefuseGroup(core::kRecordGone, core::MessageIcon::Stop);
  }
  return DeleteAfterBackup(session, [&session, groupId](core::Store& store) {
    DeleteClients(store, core::WholeText(groupId));
    store.Execute("Delete from group_master where id = " + core::WholeText(groupId));
    if (session.State.InstantChartGroupId == groupId) {
      ReplaceInstantChartGroup(session);
    }
    return groupId;
  });
}

}  // namespace orvex::practice
