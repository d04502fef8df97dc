#include "practice/deleted_client.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "core/store_write.h"
#include "core/text.h"

namespace orvex::practice {

namespace {

std::string WholeText(std::int64_t number) { return core::PaddedWhole(number, 1); }

// The engine writes its values as texts that it reads again to the last bit, and Null as such.
std::vector<KeptRow> RowsOf(const core::Store& store, const std::string& table,
                            const std::string& which) {
  const std::string from = " from " + table + " where " + which;
  const std::vector<std::string> columns = store.Query("Select *" + from).FieldNames();
  std::vector<std::string> quoted;
  for (const std::string& column : columns) {
    quoted.push_back("quote(" + column + ") as " + column);
  }
  std::vector<KeptRow> rows;
  for (core::Result row = store.Query("Select " + core::Join(quoted, ", ") + from); !row.AtEnd();
       row.Next()) {
    KeptRow kept{table, columns, {}};
    for (const std::string& column : columns) {
      kept.Values.push_back(row.Text(column));
    }
    rows.push_back(std::move(kept));
  }
  return rows;
}

void WriteRow(core::Store& store, const KeptRow& row) {
  store.Execute("Insert into " + row.Table + " (" + core::Join(row.Columns, ", ") + ") values (" +
                core::Join(row.Values, ", ") + ")");
}

const std::string& ValueOf(const KeptRow& row, const std::string& column) {
  const auto place = std::find(row.Columns.begin(), row.Columns.end(), column);
  return row.Values.at(static_cast<std::size_t>(place - row.Columns.begin()));
}

// The id of the group that the client goes to; one that is gone is written again.
std::string GroupFor(core::Store& store, const KeptRow& group) {
  for (const char* column : {"id", "groupname"}) {
    const core::Result there = store.Query("Select id from group_master where " +
                                           std::string(column) + " = " + ValueOf(group, column));
    if (!there.AtEnd()) {
      return there.Text("id");
    }
  }
  WriteRow(store, group);
  return ValueOf(group, "id");
}

}  // namespace

std::optional<KeptClient> KeepClient(const core::Session& session, std::int32_t clientId) {
  const core::Store& store = session.StoreConnection;
  const std::string id = WholeText(clientId);
  const core::Result client =
      store.Query("Select fullname, groupid from client_master where id = " + id);
  if (client.AtEnd()) {
    return std::nullopt;
  }
  std::vector<KeptRow> group = RowsOf(store, "group_master", "id = " + client.Text("groupid"));
  if (group.empty()) {
    return std::nullopt;
  }
  KeptClient kept{clientId, client.Text("fullname"), std::move(group.front()), {}};
  for (const auto& [table, key] :
       {std::pair("client_master", "id = "), std::pair("client_planets", "clientid = "),
        std::pair("client_remedy", "clientid = "), std::pair("client_event", "clientid = ")}) {
    const std::vector<KeptRow> rows = RowsOf(store, table, key + id);
    kept.Rows.insert(kept.Rows.end(), rows.begin(), rows.end());
  }
  return kept;
}

core::SaveResult BringBack(core::Session& session, const KeptClient& client) {
  const std::string id = WholeText(client.Id);
  if (!session.StoreConnection.Query("Select id from client_master where id = " + id).AtEnd()) {
    return {0, core::Refusal{"This client is stored already.", core::MessageIcon::Information,
                             "clientList"}};
  }
  return core::WriteBatch(session, [&client, &id](core::Store& store) {
    const std::string group = GroupFor(store, client.Group);
    for (const KeptRow& row : client.Rows) {
      WriteRow(store, row);
    }
    store.Execute("Update client_master set groupid = " + group + " where id = " + id);
    return client.Id;
  });
}

}  // namespace orvex::practice
