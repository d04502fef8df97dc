// A deleted client is kept in memory, so that the deletion can be taken back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/save_result.h"
#include "core/session.h"

namespace orvex::practice {

// A row of the store, each value as a statement writes it.
struct KeptRow {
  std::string Table;
  std::vector<std::string> Columns;
  std::vector<std::string> Values;
};

// A client with its planets, remedies and life events, and the group that it stood in.
struct KeptClient {
  std::int32_t Id = 0;
  std::string ClientName;
  KeptRow Group;
  std::vector<KeptRow> Rows;
};

// The rows of a stored client, read before it is deleted; nothing where it is gone.
std::optional<KeptClient> KeepClient(const core::Session& session, std::int32_t clientId);

// Writes a deleted client's rows again, under the ids that they had. A group that is gone comes
// back with it, unless another has its name by now: then the client goes there. Refused where the
// client is stored.
core::SaveResult BringBack(core::Session& session, const KeptClient& client);

}  // namespace orvex::practice
