#include "practice/client_list.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "core/store_write.h"
#include "core/text.h"
#include "practice/deletion.h"
#include "practice/list_cells.h"

namespace orvex::practice {

namespace {

core::Refusal RefuseClient(const char* text,
                           core::MessageIcon icon = core::MessageIcon::Information) {
  return {text, icon, "clientList"};
}

// The group of a client; nothing where the client is gone.
std::optional<std::int32_t> StoredGroupOf(const core::Session& session, std::int32_t clientId) {
  const core::Result row = session.StoreConnection.Query(
      "Select groupid from client_master where id = " + core::WholeText(clientId));
  return row.AtEnd() ? std::nullopt
                     : std::optional(static_cast<std::int32_t>(row.Integer("groupid")));
}

std::optional<core::Refusal> CheckClosed(const core::Session& session, std::int32_t clientId,
                                         const char* text) {
  const std::vector<std::int32_t>& open = session.State.OpenHoroscopes;
  const bool isOpen = std::find(open.begin(), open.end(), clientId) != open.end();
  return isOpen ? std::optional(RefuseClient(text)) : std::nullopt;
}

core::Table EmptyList() {
  core::Table table;
  table.Columns = {{"Client Name", 140},
                   {"Gen", 60},
                   {"Birth/Horary Date", 150},
                   {"#", 50},
                   {"City", 195},
                   {"Created On", 100},
                   {"Mobile", 120},
                   {"Email", 150},
                   {"Comments", 200}};
  return table;
}

void AddClient(const core::Result& row, core::Table& table) {
  table.AddRow().Tag = row.Text("id");
  const std::size_t at = table.Rows.size() - 1;
  table.At(at, ClientColumn::ClientName).Text = row.Text("fullname");
  table.At(at, ClientColumn::Gender).Text = row.Text("gender");
  table.At(at, ClientColumn::BirthDate) = DateCell(row, "birthdate");
  if (row.Flag("horary")) {
    core::Cell& number = table.At(at, ClientColumn::HoraryNumber);
    number = NumberCell(row, "horaryno");
    number.Tooltip = row.Text("horaryquestion");
  }
  core::Cell& city = table.At(at, ClientColumn::City);
  city.Text = row.Text("cityname");
  city.Tooltip = "Lat: " + row.Text("latitude") + " | Lon: " + row.Text("longitude") +
                 " | Off: " + row.Text("offset");
  table.At(at, ClientColumn::CreatedOn) = DateCell(row, "createddate");
  table.At(at, ClientColumn::Mobile).Text = row.Text("mobile");
  table.At(at, ClientColumn::Email).Text = row.Text("email");
  table.At(at, ClientColumn::Comments).Text = row.Text("comments");
}

// The clients that a condition, "" or one that ends with "and", leaves.
core::Table LoadClients(const core::Session& session, const std::string& condition,
                        const std::string& order) {
  core::Table table = EmptyList();
  for (core::Result row = session.StoreConnection.Query(
           "Select cm.*, ct.cityname from client_master cm, city_master ct where " + condition +
           "cm.cityid = ct.id order by " + order);
       !row.AtEnd(); row.Next()) {
    AddClient(row, table);
  }
  return table;
}

}  // namespace

core::Table LoadClientsOfGroup(const core::Session& session, std::optional<std::int32_t> groupId) {
  return LoadClients(session, groupId ? "cm.groupid = " + core::WholeText(*groupId) + " and " : "",
                     session.State.SortColumn + " collate names");
}

core::Table LoadRecentClients(const core::Session& session,
                              const std::vector<std::int32_t>& opened) {
  constexpr std::size_t kMost = 20;
  std::vector<std::string> ids;
  const auto take = [&ids](const std::string& id) {
    if (ids.size() < kMost && std::find(ids.begin(), ids.end(), id) == ids.end()) {
      ids.push_back(id);
    }
  };
  for (auto last = opened.rbegin(); last != opened.rend(); ++last) {
    take(core::WholeText(*last));
  }
  for (core::Result row = session.StoreConnection.Query(
           "Select Top 20 id from client_master order by createddate desc, id desc");
       !row.AtEnd(); row.Next()) {
    take(row.Text("id"));
  }
  core::Table table =
      ids.empty() ? EmptyList()
                  : LoadClients(session, "cm.id in (" + core::Join(ids, ",") + ") and ", "cm.id");
  const auto place = [&ids](const core::Row& row) {
    return std::find(ids.begin(), ids.end(), row.Tag) - ids.begin();
  };
  std::sort(
      table.Rows.begin(), table.Rows.end(),
      [&](const core::Row& left, const core::Row& right) { return place(left) < place(right); });
  return table;
}

std::string ClientCountText(std::size_t count, bool filtered) {
  return core::WholeText(static_cast<std::int64_t>(count)) + " client(s)" +
         (filtered ? " filtered" : "");
}

bool HasClients(const core::Session& session) {
  return !session.StoreConnection.Query("Select Top 1 id from client_master").AtEnd();
}

std::string TotalClients(const core::Session& session) {
  return "Total Clients: " +
         session.StoreConnection.Query("Select count(id) as cnt from client_master").Text("cnt");
}

ClientColumn SortedColumn(const core::Session& session) {
  const std::string& column = session.State.SortColumn;
  if (column == "cm.BirthDate" || column == "cm.Mobile") {
    return ClientColumn::BirthDate;
  }
  if (column == "ct.CityName") {
    return ClientColumn::City;
  }
  if (column == "cm.CreatedDate") {
    return ClientColumn::CreatedOn;
  }
  return column == "cm.Email" ? ClientColumn::Email : ClientColumn::ClientName;
}

std::string DeleteClientQuestion(const core::Session& session, std::int32_t clientId) {
  const core::Result client = session.StoreConnection.Query(
      "Select fullname from client_master where id = " + core::WholeText(clientId));
  return kDeleteClientQuestion + (client.AtEnd() ? "" : "\n\n" + client.Text("fullname"));
}

std::optional<core::Refusal> CheckEditClient(const core::Session& session, std::int32_t clientId) {
  return CheckClosed(session, clientId, "Horoscope can't be edited as it is currently open.");
}

std::optional<core::Refusal> CheckDeleteClient(const core::Session& session,
                                               std::int32_t clientId) {
  return CheckClosed(session, clientId, "Horoscope can't be deleted as it is currently open.");
}

core::SaveResult DeleteClient(core::Session& session, std::int32_t clientId) {
  if (std::optional<core::Refusal> refused = CheckDeleteClient(session, clientId)) {
    return {0, std::move(refused)};
  }
  if (!StoredGroupOf(session, clientId)) {
    return {0, RefuseClient(core::kNoClientWithId, core::MessageIcon::Stop)};
  }
  return DeleteAfterBackup(session, [clientId](core::Store& store) {
    const std::string id = core::WholeText(clientId);
    store.Execute("Delete from client_planets where clientid = " + id);
    store.Execute("Delete from client_remedy where clientid = " + id);
    store.Execute("Delete from client_event where clientid = " + id);
    store.Execute("Delete from client_master where id = " + id);
    return clientId;
  });
}

ClientPlace PlaceOfClient(const core::Session& session, std::int32_t clientId) {
  const core::Result row = session.StoreConnection.Query(
      "Select cm.fullname, cm.groupid, gm.groupname from client_master cm, group_master gm where "
      "cm.groupid = "
      "gm.id and cm.id = " +
      core::WholeText(clientId));
  return row.AtEnd() ? ClientPlace{}
                     : ClientPlace{static_cast<std::int32_t>(row.Integer("groupid")),
                                   row.Text("fullname"), row.Text("groupname")};
}

core::SaveResult MoveClient(core::Session& session, std::int32_t clientId, std::int32_t groupId) {
  const std::optional<std::int32_t> present = StoredGroupOf(session, clientId);
  if (!present) {
    return {0, RefuseClient(core::kNoClientWithId, core::MessageIcon::Stop)};
  }
  if (*present == groupId) {
    return {0, RefuseClient("Source and Destination Groups cannot be the same.")};
  }
  if (!core::HasRow(session.StoreConnection, "group_master", groupId)) {
    return {0, RefuseClient(core::kNoGroupWithId, core::MessageIcon::Stop)};
  }
  return core::WriteBatch(session, [clientId, groupId](core::Store& store) {
    store.Execute("Update client_master set groupid = " + core::WholeText(groupId) +
                  " where id = " + core::WholeText(clientId));
    return clientId;
  });
}

}  // namespace orvex::practice
