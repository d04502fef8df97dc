// The groups that clients are kept in.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

inline constexpr const char* kDeleteGroupQuestion =
    "Are you sure you want to delete the selected Group and all Clients under it?";

// The question before a group is deleted; below it the group's name and how many clients and
// remedies go with it.
std::string DeleteGroupQuestion(const core::Session& session, std::int32_t groupId);

// What the lists and the status panel show without groups.
inline constexpr const char* kNoGroups = "No Groups Found";
inline constexpr const char* kNoGroupsStatus =
    "No Groups defined. Please add a Group to get started.";

enum class GroupColumn { GroupName };

// All groups by name. The tag of a row is the group's id.
core::Table LoadGroups(const core::Session& session);

// The rows above the groups: all clients, and those worked with last.
inline constexpr std::int32_t kAllClients = -1;
inline constexpr std::int32_t kRecentClients = -2;

enum class GroupCountColumn { GroupName, Clients };

// What the list of groups shows: "All clients" and "Recent" with the tags above, then the groups by
// name, each with its number of clients; Recent has none. Without groups there is no row at all.
core::Table LoadGroupsWithCounts(const core::Session& session);

// The group of a client; 0 where there is no such client.
std::int32_t GroupOfClient(const core::Session& session, std::int32_t clientId);

// Saves a new group, or another name for a stored one. Empty, longer than 20 characters or taken
// already (in any case): refused.
core::SaveResult AddGroup(core::Session& session, const std::string& name);
core::SaveResult RenameGroup(core::Session& session, std::int32_t groupId, const std::string& name);

// The name of a stored group as the dialog opens on it; nothing where it is gone, after the
// program's message.
std::optional<std::string> OpenEditGroup(core::Session& session, std::int32_t groupId);

// Why no group may be deleted now: a horoscope is open. Nothing where one may.
std::optional<core::Refusal> CheckDeleteGroup(const core::Session& session);

// Deletes a group with all its clients, in one batch, after the store is backed up. Refused while a
// horoscope is open. Where it was the group of the instant charts, the first group takes its place.
core::SaveResult DeleteGroup(core::Session& session, std::int32_t groupId);

}  // namespace orvex::practice
