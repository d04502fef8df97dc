// Entries of a page as a calendar file of the user's.
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "transit/calendar_file.h"
#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

// Asks for a file and writes the entries into it. What the status line says of it; "" where the
// user turned back or the file was refused, which is told.
QString SaveCalendar(Workplace& place, QWidget& parent, const std::string& title,
                     const std::vector<transit::CalendarEvent>& events);

}  // namespace orvex::ui
