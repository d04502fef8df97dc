// The clients whose birthday is today.
#pragma once

#include <string>

#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

enum class BirthdayColumn { ClientName, Email, Mobile, Age };

// Clients born on today's day and month of an earlier year; the age is the difference of the
// calendar years. Horary queries have no birthday. The tag of a row is the client's id.
core::Table GetBirthdaysToday(const core::Session& session);

// "2 Birthday(s) Today".
std::string BirthdayCaption(const core::Table& birthdays);

}  // namespace orvex::practice
