// The planet table of a horoscope.
#pragma once

#include <vector>

#include "chart/horoscope_model.h"
#include "chart/stored_chart.h"
#include "core/reference_data.h"

namespace orvex::chart {

// Nine rows in dasha order, read off the stored planets and the house table. Statements that fail
// leave their cells empty. Lords stand bare until AppendOwnedHouses.
void FillPlanetTable(const core::ReferenceData& reference, HoroscopeModel& model,
                     const std::vector<StoredPlanet>& planets);

// Writes the signified houses behind each star, sub and sub-sub lord.
void AppendOwnedHouses(HoroscopeModel& model);

// Copies the lord of each planet's house.
void FillSignLords(HoroscopeModel& model);

// "Tenanted" when a planet stands in a star of this one, "Self" when that one is itself, else
// "Untenanted".
void FillTenancy(HoroscopeModel& model);

// "EX" for a planet that is exalted in its sign, "DB" for one that is debilitated.
void FillDignity(const core::ReferenceData& reference, HoroscopeModel& model);

// The table of all quarters of stars.
void FillStarTable(const core::ReferenceData& reference, HoroscopeModel& model);

}  // namespace orvex::chart
