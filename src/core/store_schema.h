// How a store comes to its newest form. A new store and one of an old release go the same way.
#pragma once

#include <filesystem>

#include "core/store.h"

namespace orvex::core {

// Makes the store of a new home, filled with the reference tables of `shippedData`, one settings
// row and the group "General". The file appears under its name only when it is whole. StoreError or
// std::runtime_error where it could not be made.
void CreateStore(const std::filesystem::path& file, const std::filesystem::path& shippedData);

// Whether a store has an earlier form than the newest.
bool NeedsUpgrade(const Store& store);

// Brings a store to the newest form: adds the columns that probes do not find and fills them, mends
// the sign table (on every start), and adds what later releases brought: indexes, the matters with
// their shipped rows, the table of life events. What was done before a failure stays.
void ApplyStoreUpgrades(Store& store, const std::filesystem::path& shippedData);

}  // namespace orvex::core
