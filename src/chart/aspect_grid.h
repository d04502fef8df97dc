// The angles from each planet to each cusp, by the sign of the cusp.
#pragma once

#include "chart/horoscope_model.h"
#include "core/aspect_bands.h"

namespace orvex::chart {

// The first column is the direction or the planet; then one column a sign, column number = sign.
enum class GridRow { Zodiac, Owner, Element, Modality, RashiNo, House, FirstPlanet };

// Rebuilds AspectGrid: six rows that tell the signs, then a row for each planet in the order of the
// planet table. The tag of a sign's cell in the "House" row is the house number.
void BuildAspectGrid(HoroscopeModel& model, const core::AspectBandLimits& bands);

// Appends the row of a planet: the angle to each cusp with two decimals, coloured by its band but
// for the nodes. Its first cell's tag is the direction of the planet's sign.
void CalcAspect(HoroscopeModel& model, const core::AspectBandLimits& bands, std::size_t planetRow);

}  // namespace orvex::chart
