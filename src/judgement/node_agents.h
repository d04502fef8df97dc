// Whom Rahu and Ketu stand for.
#pragma once

#include <vector>

#include "chart/horoscope_model.h"

namespace orvex::judgement {

// The rows of the planets that a node stands for, ascending, without the nodes: its sign lord, its
// star lord, the planets in its sign and the planets that aspect it by whole signs. A node without
// a house has its lords alone.
std::vector<std::size_t> AgentsOfNode(const chart::HoroscopeModel& model, chart::PlanetPlace node);

}  // namespace orvex::judgement
