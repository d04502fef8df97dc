// The chart of the sky view in the three regional styles.
#pragma once

#include "panchang/sky_view.h"
#include "report/chart_cells.h"

namespace orvex::report {

// The rashi cells of the sky's houses; the cells of chalit houses stay empty.
ChartCells BuildSkyChart(const panchang::SkyView& view);

}  // namespace orvex::report
