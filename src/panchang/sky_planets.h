// The planet table of the sky view and what is read off it.
#pragma once

#include "panchang/planet_positions.h"
#include "panchang/sky_view.h"

namespace orvex::panchang {

// The columns without a row.
core::Table EmptySkyPlanets();

// A row with sign, star and quarter of a degree text in a sign; the lords stay empty. Rashi 0 has
// neither.
void AddSkyPlanet(const core::ReferenceData& reference, core::Table& table, const std::string& name,
                  bool retrograde, int rashi, const std::string& degree);

// "C" for the planets too near the Sun of the first row.
void CheckCombustion(core::Table& planets);

// Lords of every row's degree; "EX" and "DB" of planets in their signs of exaltation and fall.
void WriteSkyLords(const core::ReferenceData& reference, core::Table& planets);
void WriteDignities(const core::ReferenceData& reference, core::Table& planets);

// The houses with their planets, those of `positions`, and the marks of the planet table.
core::Table BuildSkyHouses(const std::vector<PlanetPosition>& positions, int ascendantRashi);
void MarkCombustInHouses(const core::Table& planets, core::Table& houses);

}  // namespace orvex::panchang
