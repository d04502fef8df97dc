// The cusp table of a horoscope.
#pragma once

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::chart {

// Twelve rows with the lords, star and quarter of each cusp, from the cusp degrees of the house
// table. The signified planets stay empty. A cusp that no sub or star holds leaves cells empty.
void FillCuspTable(const core::ReferenceData& reference, HoroscopeModel& model);

}  // namespace orvex::chart
