// What the lists of periods show beside the planet and the end: where a period begins, the age at
// its end, and whether it is over or runs.
#pragma once

#include "core/date_text.h"
#include "core/table.h"

namespace orvex::ui {

inline constexpr const char* kStartColumn = "Start Date";
inline constexpr const char* kAgeColumn = "Age";

enum class PeriodState { Over, Runs, Comes };

// A list with two more columns, "Start Date" and "Age" ("36y 4m" at the end of the period); ends
// tell the start in their tool tip, periods that are over are quiet. A row without dates stays as
// it is.
core::Table WithAges(core::Table list, core::DateTime birth, core::DateTime today);

// The state of a row of a list on a day, whose start counts in and whose end does not; nothing
// where the row has no dates.
std::optional<PeriodState> StateOf(const core::Row& row, core::DateTime day);

// The row of a list that runs on a day; nothing where none does.
std::optional<std::size_t> RowRunningOn(const core::Table& list, core::DateTime day);

}  // namespace orvex::ui
