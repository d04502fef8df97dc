// The pieces of HTML that the report is made of. Their wording is fixed: templates rely on it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "report/chart_cells.h"

namespace orvex::report {

inline constexpr const char* kFontEnd = "</font></td>";

// A text that a user typed, made harmless between tags: &, <, >, and the bracket that would begin
// a placeholder.
std::string EscapeHtml(const std::string& text);

// The same for the value of an attribute: quotes too.
std::string EscapeAttribute(const std::string& text);

// A table in the report's standard style: a header of the columns that are not hidden, then its
// rows.
std::string RenderTable(const core::Table& table);

// The opening, the header and the body cell of that style.
std::string StdTableOpening();
std::string HeaderCell(const std::string& caption);
std::string BodyCell(const std::string& text);
std::string HeaderRow(const core::Table& table);

// A chart in South Indian style: four rows of four cells, the middle left empty.
std::string SouthGridHtml(const SouthGrid& grid);

// A table of periods in the report's dasha style.
std::string DashaTableHtml(const core::Table& periods);

// The Lo Shu grid from the texts of its numbers, lines parted by "*".
std::string LoShuGridHtml(const std::array<std::string, 10>& cellTexts);

}  // namespace orvex::report
