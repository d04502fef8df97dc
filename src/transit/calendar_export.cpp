#include "transit/calendar_export.h"

#include "core/home.h"
#include "core/own_files.h"
#include "exact/crossings_table.h"

namespace orvex::transit {

void WriteCalendar(const core::Session& session, const std::filesystem::path& file,
                   const std::vector<CalendarEvent>& events) {
  core::CheckFileToWrite(session, file);
  const std::chrono::seconds clock =
      exact::OffsetOf(static_cast<double>(session.State.UserCityOffset));
  core::WriteFileSafely(file, CalendarText(events, session.Time.Now() - clock));
}

}  // namespace orvex::transit
