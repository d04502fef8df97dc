// The status line of a horoscope: where the ascendant and the planets stand.
#pragma once

#include "chart/horoscope_model.h"

namespace orvex::chart {

// Writes the captions PlanetPositions and StatusBar from the planet and cusp tables.
// `statusBarDegreeCalc` 'A' shows degrees of the circle, 'R' degrees within the sign.
void WriteStatusLine(HoroscopeModel& model, char statusBarDegreeCalc);

}  // namespace orvex::chart
