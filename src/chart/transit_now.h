// The sky of the present moment beside a horoscope.
#pragma once

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::chart {

enum class TransitNowColumn { Planet, Degree, Rashi, StarLord, SubLord, R };

// The nine planets at the present moment of the user city's clock.
void BuildTransitNow(core::Session& session, HoroscopeModel& model);

}  // namespace orvex::chart
