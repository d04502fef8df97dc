// A horoscope of a chart that is not stored, for what is only tried.
#pragma once

#include "chart/chart_computation.h"
#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::horoscope {

// Computes the chart and reads houses, cusps, planets with their lords and houses, and the list of
// Dashas from it as they would be read from its stored rows. Tables of the further analyses stay
// empty. Throws what chart::ComputeChart throws.
chart::HoroscopeModel UnsavedHoroscope(core::Session& session, const chart::ChartInput& input);

// The same of a chart that is computed already.
chart::HoroscopeModel UnsavedHoroscope(const core::Session& session, core::DateTime birth,
                                       const chart::ChartResult& chart);

}  // namespace orvex::horoscope
