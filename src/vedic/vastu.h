// Impacts of hard aspects on the Vastu plan.
#pragma once

#include "chart/horoscope_model.h"
#include "core/aspect_bands.h"

namespace orvex::vedic {

enum class ImpactColumn { AspectFrom, FromDir, ToDir, Impact, Aspect };
enum class HitColumn { FromPlanet, FromDir, ToPlanet, ToHouse, ToDir, Aspect, Type };

// A pad's name carries its slice of the circle as tooltip and its colour of the plan; the deities
// of a struck pad are red.
enum class PadColumn { Pad, Sign, Inner, Outer };

// Writes ImpactTable, HitsTable and VastuPads anew from the aspect grid and the list of planet
// aspects as they stand. Squares and oppositions by the given bands strike; cells that hold no
// angle are passed over.
void VastuImpactAnalysis(chart::HoroscopeModel& model, const core::AspectBandLimits& bands);

}  // namespace orvex::vedic
