// How the dialogs write: one batch, or the program's message.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "core/save_result.h"
#include "core/session.h"

namespace orvex::core {

// Runs `write` on the store in one batch and gives the id that it returns; refused with the
// program's message where a statement fails.
template <typename Write>
SaveResult WriteBatch(Session& session, Write&& write) {
  try {
    Batch batch(session.StoreConnection);
    const std::int32_t id = std::forward<Write>(write)(session.StoreConnection);
    SyncStore(session.StoreConnection);
    batch.Commit();
    return {id, std::nullopt};
  } catch (const StoreError&) {
    return {0, Refusal{kCouldNotUpdate, MessageIcon::Stop, ""}};
  }
}

// The id of the row that was added last to a table.
inline std::int32_t LastId(const Store& store, const std::string& table) {
  return static_cast<std::int32_t>(store.Query("Select max(id) as id from " + table).Integer("id"));
}

}  // namespace orvex::core
