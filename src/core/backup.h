// Copies of the store under Data/Backups, and the way back from one.
#pragma once

#include <filesystem>
#include <string>

#include "core/clock.h"
#include "core/home.h"
#include "core/store.h"

namespace orvex::core {

// How many copies are kept; an older one goes when a new one is made.
inline constexpr std::size_t kBackupsKept = 14;

// Copies the store and gives the copy's file, named after the moment. The copy (0600) appears under
// its name only when it is whole. StoreError or std::filesystem::filesystem_error where it failed.
std::filesystem::path BackUpStore(const Home& home, const Store& store, const Clock& clock);

// The same, once a day.
void BackUpStoreDaily(const Home& home, const Store& store, const Clock& clock);

// Puts a file in the place of the home's store. The file is checked first, and the present store is
// backed up; a present store that can't be read is kept beside the backups as it is. The caller
// holds the home's lock and no connection. std::runtime_error with the program's message where the
// file is no whole store of this program or of a later release; nothing is changed then.
void RestoreStore(const Home& home, const std::filesystem::path& file, const Clock& clock);

}  // namespace orvex::core
