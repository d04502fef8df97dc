// The list of clients.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

enum class ClientColumn {
  ClientName,
  Gender,
  BirthDate,
  HoraryNumber,
  City,
  CreatedOn,
  Mobile,
  Email,
  Comments
};

// The clients of a group, or of all groups, in the order of the settings. The tag of a row is the
// client's id; dates sort by their sort keys. Clients whose city is gone are not listed.
core::Table LoadClientsOfGroup(const core::Session& session, std::optional<std::int32_t> groupId);

// The clients worked with last, 20 at most: those of `opened`, the last one first, then those added
// last. Columns and tags as above.
core::Table LoadRecentClients(const core::Session& session,
                              const std::vector<std::int32_t>& opened);

// What the list shows without rows.
inline constexpr const char* kNoClients = "No Clients Found";

// The panel under the list: "12 client(s)", with a filter text "12 client(s) filtered".
std::string ClientCountText(std::size_t count, bool filtered);

// Whether there is any client, in whatever group.
bool HasClients(const core::Session& session);

// "Total Clients: " and the number of all clients.
std::string TotalClients(const core::Session& session);

// The places in the client list of the column that it is sorted and grouped by, as the settings
// say. A list by mobile number is sorted by the birth date: its code has always named that place.
ClientColumn SortedColumn(const core::Session& session);

inline constexpr const char* kDeleteClientQuestion =
    "Are you sure you want to delete the selected Client?";

// The question before a client is deleted, with the client's name below it.
std::string DeleteClientQuestion(const core::Session& session, std::int32_t clientId);

// Why a client may not be edited or deleted: its horoscope is open. Nothing where it may.
std::optional<core::Refusal> CheckEditClient(const core::Session& session, std::int32_t clientId);
std::optional<core::Refusal> CheckDeleteClient(const core::Session& session, std::int32_t clientId);

// Deletes a client with its planets and remedies in one batch, after the store is backed up.
// Refused where its horoscope is open, it is gone, or the backup fails.
core::SaveResult DeleteClient(core::Session& session, std::int32_t clientId);

// The names of a client and of its group; "" and 0 where the client is gone.
struct ClientPlace {
  std::int32_t GroupId = 0;
  std::string ClientName;
  std::string GroupName;
};
ClientPlace PlaceOfClient(const core::Session& session, std::int32_t clientId);

// Moves a client to another group. Refused for its own group and one that is gone.
core::SaveResult MoveClient(core::Session& session, std::int32_t clientId, std::int32_t groupId);

}  // namespace orvex::practice
