// Names of months as the transit views show them.
#pragma once

#include <string>

#include "core/date_text.h"

namespace orvex::transit {

// "November", abbreviated "Nov": the month of a moment.
std::string MonthName(core::DateTime moment, bool abbreviate = false);

// "November 2026": the month and the year of a moment; with another text between the two.
std::string MonthAndYear(core::DateTime moment, bool abbreviate = false,
                         const std::string& between = " ");

}  // namespace orvex::transit
