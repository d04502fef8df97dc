// The list of clients.
#pragma once

#include <cstdint>
#include <optional>

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

}  // namespace orvex::practice
