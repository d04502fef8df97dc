// A horoscope read from another house as the first.
#pragma once

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::chart {

enum class RotatedColumn { H, Rashi, Kp, CuspDeg, BcPlanets, RcPlanets };

// The tables of the birth, from which each rotation starts anew, so that none drifts.
struct BirthTables {
  core::Table HouseTable;
  core::Table CuspTable;
  core::Table PlanetTable;
  std::string Title;
};

BirthTables TakeBirthTables(const HoroscopeModel& model);

// What stands behind the name in titles: " (Rotated to 5)"; "" for house 1.
std::string RotationMark(int house);

// The twelve rows from a house (1 to 12) on. From house 1 the signs stand in the plain order of the
// zodiac, from any other house in the order of the houses.
core::Table RotatedRows(const HoroscopeModel& model, int house);

// Renumbers houses, cusps and planets so that `house` counts as the first, starting from the tables
// of the birth, and writes RotatedTable and the title. House 1 gives the tables of the birth again.
// The analyses that read them are the caller's to rebuild.
void RotateTables(const core::ReferenceData& reference, const BirthTables& birth,
                  HoroscopeModel& model, int house);

}  // namespace orvex::chart
