// A chart of the present moment at the user's city, saved as a client.
#pragma once

#include "chart/client_saving.h"

namespace orvex::chart {

inline constexpr const char* kInstantChartQuestion =
    "Instant Chart not configured in Settings window. Do you wish to configure it now?";

// Computes the chart of now, saves it in the group of the settings and gives the new id. Refused
// with kInstantChartQuestion, a yes/no question, where the settings name no group.
core::SaveResult CreateInstantChart(core::Session& session,
                                    Creation creation = Creation::AtTheClocksSecond);

}  // namespace orvex::chart
