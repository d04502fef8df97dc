// The groups that clients are kept in.
#pragma once

#include <cstdint>
#include <string>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

inline constexpr const char* kDeleteGroupQuestion =
    "Are you sure you want to delete the selected Group and all Clients under it?";

enum class GroupColumn { GroupName };

// All groups by name. The tag of a row is the group's id.
core::Table LoadGroups(const core::Session& session);

// Saves a new group, or another name for a stored one. Empty, longer than 20 characters or taken
// already (in any case): refused.
core::SaveResult AddGroup(core::Session& session, const std::string& name);
core::SaveResult RenameGroup(core::Session& session, std::int32_t groupId, const std::string& name);

// Deletes a group with all its clients, in one batch. Refused while a horoscope is open. Where it
// was the group of the instant charts, the first group takes its place.
core::SaveResult DeleteGroup(core::Session& session, std::int32_t groupId);

}  // namespace orvex::practice
