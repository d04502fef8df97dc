// A table of a window as a spreadsheet of the user's.
#pragma once

#include <string>

#include "core/table.h"
#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

// Asks for a file, writes the table into it and opens it with the desktop's program. What refuses
// to be written is told.
void ExportTable(Workplace& place, QWidget& parent, const core::Table& table,
                 const std::string& title);

}  // namespace orvex::ui
