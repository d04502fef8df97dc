// A list as a spreadsheet.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/save_result.h"
#include "core/table.h"

namespace orvex::practice {

// Writes a table as an .xlsx file: captions bold and frozen in row 1, one row a list row below.
// A cell whose sort key is the moment of the date that it shows becomes a date, one whose sort key
// is the number that it shows a number, and everything else a text, so that none is ever taken for
// a formula. Hidden columns stay hidden. The title names the sheet. The file (0600) is written
// beside and renamed. Refused with the program's message where anything fails.
std::optional<core::Refusal> ExportList(const core::Table& table, const std::filesystem::path& file,
                                        const std::string& title);

// A title as a sheet can be named: without the characters that break a name, 1 to 31 long.
std::string SheetName(const std::string& title);

}  // namespace orvex::practice
