// How the dialogs write: one batch, or the program's message.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "core/exact_numbers.h"
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

// Whether a table has the row of that id.
inline bool HasRow(const Store& store, const std::string& table, std::int32_t id) {
  return !store.Query("Select id from " + table + " where id = " + WholeText(id)).AtEnd();
}

// Tells that the row which a form was to be opened on is gone; gives the form that is none.
inline std::nullopt_t TellRecordGone(Session& session) {
  session.Shown.ShowMessage(kRecordGone, MessageButtons::Ok, MessageIcon::Stop);
  return std::nullopt;
}

// The id of the row that was added last to a table.
inline std::int32_t LastId(const Store& store, const std::string& table) {
  return static_cast<std::int32_t>(store.Query("Select max(id) as id from " + table).Integer("id"));
}

}  // namespace orvex::core
