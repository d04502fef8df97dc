// A table of a window as a spreadsheet of the user's.
#pragma once

#include <string>

#include "core/table.h"
#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

class TableView;

// Asks for a file, writes the table into it and opens it with the desktop's program. What refuses
// to be written is told.
void ExportTable(Workplace& place, QWidget& parent, const core::Table& table,
                 const std::string& title);

// Offers the export in the table's menu, under its accessible name of that moment.
void OfferExport(Workplace& place, TableView& table);

}  // namespace orvex::ui
