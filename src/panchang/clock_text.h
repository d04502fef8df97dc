// The clock times that the sun events leave behind as texts.
#pragma once

#include <string_view>

#include "core/date_text.h"

namespace orvex::panchang {

// The moment on `date` of a text as "6:21 AM" or "06:21 PM"; an hour above 12 stands as it is.
// std::invalid_argument for a text that is no clock time, as the "-12:00 PM" of a day on which the
// Sun does not set.
core::DateTime ClockOn(core::DateTime date, std::string_view text);

// Whole minutes from one moment to another; negative backwards.
std::int64_t MinutesBetween(core::DateTime from, core::DateTime to);

core::DateTime AddMinutes(core::DateTime moment, std::int64_t minutes);

}  // namespace orvex::panchang
