// The tables of the program on standard output: as JSON or as aligned text.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "core/table.h"

namespace orvex::cli {

using Json = nlohmann::ordered_json;

// A table as interchange: columns with captions, rows of cells; what a cell or row has not is left
// out, the neutral background too.
Json TableJson(const core::Table& table);

// Prints a document and a line break.
void PrintJson(const Json& document);

// Prints a table with aligned columns; hidden columns are left out.
void PrintTable(const core::Table& table);

// Prints a table as JSON or as text.
void Print(const core::Table& table, bool json);

}  // namespace orvex::cli
