// An iCalendar file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/date_text.h"

namespace orvex::transit {

// One entry. The same identifier in a later file replaces the entry in the user's calendar.
struct CalendarEvent {
  std::string Uid;
  core::DateTime Start{};  // a date of an entry of the whole day, else a moment in UT of one hour
  bool WholeDay = false;
  std::string Summary;
  std::string Description;
};

// The text of a calendar with these entries, made at `stampUt`.
std::string CalendarText(const std::vector<CalendarEvent>& events, core::DateTime stampUt);

}  // namespace orvex::transit
