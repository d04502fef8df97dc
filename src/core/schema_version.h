// The newest form of the store's schema.
#pragma once

namespace orvex::core {

// What the last schema file says in user_version; a store that says more was written by a later
// release.
inline constexpr int kSchemaVersion = 4;

}  // namespace orvex::core
