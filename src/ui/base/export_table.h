// A table on its way into a spreadsheet.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/table.h"
#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

class TableView;

// Asks for a file and writes the table into it as a spreadsheet; the file, or nothing where the
// user turned back or the writing was refused with the program's message.
std::optional<std::filesystem::path> ExportTable(Workplace& place, QWidget& parent,
                                                 const core::Table& table,
                                                 const std::string& title);

// Offers the export in the table's menu, under its accessible name of that moment.
void OfferExport(Workplace& place, TableView& table);

}  // namespace orvex::ui
