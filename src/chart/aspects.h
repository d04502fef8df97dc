// Aspects of whole houses, and of planets by degree.
#pragma once

#include <string>

#include "chart/horoscope_model.h"
#include "core/aspect_bands.h"

namespace orvex::chart {

// The planets of the rashi chart in the house that a house row aspects by a column of the house
// table (ASP3 to ASP10); "" where there is none.
std::string AspectedPlanets(const HoroscopeModel& model, std::size_t houseRow, HouseColumn aspect);

// The planets that a planet aspects by such a column; "" for a planet without a house.
std::string AspectedBy(const HoroscopeModel& model, const std::string& code, HouseColumn aspect);

// Whether a planet of that name aspects the sign or house `places` on (its own is 1) as a whole:
// every planet but the nodes the 7th, Saturn also the 3rd and 10th, Mars the 4th and 8th, Jupiter
// the 5th and 9th.
bool AspectsPlace(const std::string& planet, int places);

// The captions of the houses that Saturn, Mars and Jupiter aspect beside the seventh.
void HouseAspectSummary(HoroscopeModel& model);

// Fills PlanetAspectList with the ordered pairs whose forward angle lies in a band. `filter` "+"
// lists good aspects only, "-" hard ones only, any other text all. Nodes do not aspect, two planets
// at one degree have no aspect.
void LoadPlanetAspects(HoroscopeModel& model, const core::AspectBandLimits& bands,
                       const std::string& filter);

}  // namespace orvex::chart
