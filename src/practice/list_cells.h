// Cells that several lists of the practice fill alike.
#pragma once

#include <string_view>

#include "core/date_text.h"
#include "core/store.h"
#include "core/table.h"

namespace orvex::practice {

// A stored moment as its date, sorted by the moment; empty for Null.
core::Cell DateCell(const core::Result& row, std::string_view field);

// A stored number as its text, sorted by its value.
core::Cell NumberCell(const core::Result& row, std::string_view field);

}  // namespace orvex::practice
