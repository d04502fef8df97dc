// Planets that stand too near the Sun.
#pragma once

#include <string>

#include "chart/horoscope_model.h"

namespace orvex::chart {

// Whether a planet is combust: its longitude lies within its orb of the Sun's. The window does not
// wrap at 0 degrees as the sky does: below 0 its low end is counted back from 360, and its high end
// goes on beyond 360 only for a Sun whose degree text is one character long. Sun, Rahu and Ketu are
// never combust.
bool IsCombust(const std::string& planet, bool retrograde, const std::string& sunDegree,
               float longitude);

// Writes "C" into the planet table.
void MarkCombust(HoroscopeModel& model);

}  // namespace orvex::chart
