// Copies of the store under Data/Backups, and the way back from one.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/clock.h"
#include "core/home.h"
#include "core/store.h"

namespace orvex::core {

// Why a copy is made. Each kind is kept apart, so that many of one push out none of another.
enum class BackupKind { Daily, ByHand, BeforeDeletion, BeforeRestore, BeforeUpgrade };

// How many copies of a kind are kept; an older one goes when a new one is made. Copies that a clock
// which ran ahead has named after a later moment are counted by themselves.
inline constexpr std::size_t kBackupsKept = 14;

// Copies the store and gives the copy's file, named after the moment and the kind. The copy (0600)
// appears under its name only when it is whole. StoreError or std::filesystem::filesystem_error
// where it failed; nothing is left of it then. `spared` is a copy that stays whatever its age.
std::filesystem::path BackUpStore(const Home& home, const Store& store, const Clock& clock,
                                  BackupKind kind, const std::filesystem::path& spared = {});

// A copy of the kind Daily, once a day.
void BackUpStoreDaily(const Home& home, const Store& store, const Clock& clock);

// The newest copy; one that is named after a moment yet to come only where there is no other.
// Nothing where there is no copy.
std::optional<std::filesystem::path> NewestBackup(const Home& home, const Clock& clock);

// Whether a store was kept here before: a copy, or a store that could not be read.
bool HasBackups(const Home& home);

// Removes what a backup, a restore or the making of a store that broke off has left. The caller
// holds the home's lock.
void RemoveHalfCopies(const Home& home);

// Puts a file in the place of the home's store; a store behind a link stays behind it. The file is
// checked first, and the present store is backed up; a present store that can't be read is kept
// beside the backups as it is. The caller holds the home's lock and no connection.
// std::runtime_error with the reason where the file is no whole store of this program or of a later
// release, or where the present store could not be copied; nothing is changed then.
void RestoreStore(const Home& home, const std::filesystem::path& file, const Clock& clock);

}  // namespace orvex::core
