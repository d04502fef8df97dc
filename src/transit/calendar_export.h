// A calendar file of the user's.
#pragma once

#include <filesystem>
#include <vector>

#include "core/session.h"
#include "transit/calendar_file.h"

namespace orvex::transit {

// Writes the entries into a file that its owner alone reads, made now by the user city's clock.
// std::runtime_error with a message where the file is one of the program's own or can't be written;
// what was there stays then.
void WriteCalendar(const core::Session& session, const std::filesystem::path& file,
                   const std::vector<CalendarEvent>& events);

}  // namespace orvex::transit
