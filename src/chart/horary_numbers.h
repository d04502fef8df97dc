// The numbers 1 to 249 of horary queries and the spans of the zodiac that they stand for.
#pragma once

#include "core/reference_data.h"
#include "core/table.h"

namespace orvex::chart {

enum class NumberColumn { Number, Sign, From, To, SignLord, StarLord, SubLord };

// A row a number, which is also its tag. From and To are degrees of the circle with two decimals,
// as the reference table has them.
core::Table HoraryNumbers(const core::ReferenceData& reference);

}  // namespace orvex::chart
