// The files that the program itself lives from.
#pragma once

#include <filesystem>

#include "core/session.h"

namespace orvex::core {

// std::runtime_error with the program's message where a file that is to be written is the store,
// its journal, a backup, the lock, the report template or the settings file of the machine, by
// whatever path: relative, through a link, or as another name of the same file.
void CheckFileToWrite(const Session& session, const std::filesystem::path& file);

}  // namespace orvex::core
