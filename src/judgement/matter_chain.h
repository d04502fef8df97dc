// The promise: the sub lord of the main cusp with its star lord and sub lord, and the sub lords of
// the supporting cusps, each with the houses of the matter that it stands for.
#pragma once

#include "chart/horoscope_model.h"
#include "judgement/matters.h"

namespace orvex::judgement {

// Of is the role in the chain, or the house whose sub lord the planet is. L1 to L4 are those of the
// planet levels; Supporting and Denying the houses of the matter among them, ascending, the main
// cusp with the supporting ones.
enum class ChainColumn { Of, Planet, L1, L2, L3, L4, Supporting, Denying, Marks };

// Three rows: "Cusp Sub Lord" of the main cusp, "Its Star Lord", "Its Sub Lord". A row whose planet
// the chart does not know is empty behind its role.
core::Table BuildMatterChain(const chart::HoroscopeModel& model, const Matter& matter);

// A row for each supporting house, ascending.
core::Table BuildMatterCusps(const chart::HoroscopeModel& model, const Matter& matter);

}  // namespace orvex::judgement
