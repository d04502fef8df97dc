// The house table of a horoscope.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "chart/horoscope_model.h"
#include "chart/stored_chart.h"
#include "core/reference_data.h"

namespace orvex::chart {

// The house number `places` places on from house 1 to 12, the house itself counted as 1.
int HouseOnFrom(int house, int places);

// Twelve rows with their house numbers and aspect houses.
void AddHouseRows(HoroscopeModel& model);

// Cusp degrees as stored, the signs and lords of the cusps.
void FillCusps(HoroscopeModel& model, const std::array<std::string, kHouses>& cuspDegrees);

// "Rashi" with its facts as tag, from the house that holds Aries.
void FillRashis(const core::ReferenceData& reference, HoroscopeModel& model);

// "BC Planets": codes by chalit house, as stored.
void FillBcPlanets(HoroscopeModel& model, const std::vector<StoredPlanet>& planets);

// "RC Planets": codes by sign; the planets come in the order of their rashi houses.
void FillRcPlanets(HoroscopeModel& model, const std::vector<StoredPlanet>& planets);

// "Rashi Lord" with the lord's houses; needs the planet table.
void FillRashiLords(const core::ReferenceData& reference, HoroscopeModel& model);

}  // namespace orvex::chart
