// An iCalendar file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/date_text.h"

namespace orvex::transit {

// One entry: a span where it has an end, else an hour or a whole day. The same identifier in a
// later file replaces the entry in the user's calendar.
struct CalendarEvent {
  std::string Uid;
  core::DateTime Start{};  // a date of an entry of whole days, else a moment in UT
  bool WholeDay = false;
  std::string Summary;
  std::string Description;
  std::optional<core::DateTime> End{};  // the first date or moment behind the entry
};

// The text of a calendar with these entries, made at `stampUt`.
std::string CalendarText(const std::vector<CalendarEvent>& events, core::DateTime stampUt);

}  // namespace orvex::transit
