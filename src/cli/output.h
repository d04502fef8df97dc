// The tables of the program on standard output: as JSON or as aligned text.
#pragma once

#include <cstdint>
#include <string>

#include "cli/json_document.h"
#include "core/table.h"

namespace orvex::cli {

// A cell as interchange: its text and what else it has.
Json CellJson(const core::Cell& cell);

// Cells in a row as interchange.
template <typename Cells>
Json CellsJson(const Cells& cells) {
  Json json = Json::array();
  for (const core::Cell& cell : cells) {
    json.push_back(CellJson(cell));
  }
  return json;
}

// A table as interchange: columns with captions, rows of cells; what a cell or row has not is left
// out, the neutral background too.
Json TableJson(const core::Table& table);

// Prints a document and a line break.
void PrintJson(const Json& document);

// Prints a table with aligned columns; hidden columns are left out.
void PrintTable(const core::Table& table);

// Prints a table as JSON or as text.
void Print(const core::Table& table, bool json);

// Prints a list whose rows have ids as tags; as text the ids stand in a column of their own.
void PrintList(core::Table list, bool json);

// Prints the id of what was saved.
void PrintId(std::int32_t id, bool json);

}  // namespace orvex::cli
