// What an import would save, as tables.
#pragma once

#include "core/table.h"
#include "exchange/exchange_import.h"

namespace orvex::exchange {

// clang-format off
enum class PreviewColumn {
  Name, Birth, City, Place, Latitude, Longitude, OffsetInFile, OffsetOfClocks, State, File, Line
};
enum class RefusedColumn { File, Line, Reason };
// clang-format on

// The births that passed the checks, a row each. Where the clocks of the city showed another offset
// than that with which the birth is saved, both cells are marked.
core::Table PreviewTable(const ImportPlan& plan);

// The lines that were refused.
core::Table RefusedTable(const ImportPlan& plan);

// "12 new, 3 already stored, 1 refused": before the saving.
std::string PlanText(const ImportPlan& plan);

// "12 imported, 3 already stored, 1 refused".
std::string CountText(std::size_t imported, const ImportPlan& plan);

}  // namespace orvex::exchange
