// How clients and groups are deleted: the store is copied first.
#pragma once

#include <string>
#include <utility>

#include "core/backup.h"
#include "core/store_write.h"

namespace orvex::practice {

// Backs up the store, then runs `write` in one batch. Refused, with nothing deleted, where the
// backup fails.
template <typename Write>
core::SaveResult DeleteAfterBackup(core::Session& session, Write&& write) {
  try {
    core::BackUpStore(session.Place, session.StoreConnection, session.Time,
                      core::BackupKind::BeforeDeletion);
  } catch (const std::exception& error) {
    return {0, core::Refusal{"The database could not be backed up (" + std::string(error.what()) +
                                 "); nothing was deleted.",
                             core::MessageIcon::Stop, ""}};
  }
  return core::WriteBatch(session, std::forward<Write>(write));
}

}  // namespace orvex::practice
