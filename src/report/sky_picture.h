// The chart of the sky view as it is drawn.
#pragma once

#include "panchang/sky_view.h"
#include "report/chart_picture.h"

namespace orvex::report {

// The sky's houses in a regional style; a style other than 'N' and 'E' counts as 'S'. Empty before
// the first computation.
ChartPicture SkyPicture(const panchang::SkyView& view, char style);

}  // namespace orvex::report
