// The ranked periods and the triggers for a user's calendar.
#pragma once

#include <string>
#include <vector>

#include "core/table.h"
#include "transit/calendar_file.h"

namespace orvex::judgement {

// An entry for each row of the table of periods, whole days from its begin to its end. `owner`
// names client and matter as a title does: "Asha Rao: Marriage"; `key` tells them apart for ever:
// "12-1".
std::vector<transit::CalendarEvent> PeriodEvents(const core::Table& matterPeriods,
                                                 const std::string& owner, const std::string& key);

// An entry for each row of the table of triggers, whose clock is `offset` ahead of UT.
std::vector<transit::CalendarEvent> TriggerEvents(const core::Table& triggers,
                                                  std::chrono::seconds offset);

}  // namespace orvex::judgement
