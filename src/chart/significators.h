// Who signifies what: text arithmetic on the cells of the model, nothing from longitudes.
#pragma once

#include "chart/horoscope_model.h"

namespace orvex::chart {

// In planet-row order.
enum class LevelColumn { Planet, Stu, L1, L2, L3, L4, StarLordOf, SubLordOf };

// In planet-row order. The row's tag is the planet's code, the planet cell's tag the bare houses.
enum class NadiColumn { Planet, StarLord, SubLord };

// "Planet(s) Sig" of the cusps: occupants and owners, behind them those in a star of either.
void CuspSignificators(HoroscopeModel& model);

// The nadi significators with the agents of the nodes, and the count of their houses. Reads the
// aspects of Saturn, Mars and Jupiter off the house table.
void NadiSignificators(HoroscopeModel& model);

// The four levels of each planet, and what stands in its stars and subs.
void PlanetLevels(HoroscopeModel& model);

}  // namespace orvex::chart
