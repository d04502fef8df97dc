// Folders of the source tree that tests read.
#pragma once

#include <filesystem>

namespace orvex::test {

// The reference data and schema files that the program ships.
std::filesystem::path DataFolder();

// The pages of the user guide as they are written.
std::filesystem::path GuideSource();

}  // namespace orvex::test
