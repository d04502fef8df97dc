// What the chain of a matter says, in one plain sentence of facts.
#pragma once

#include <string>

#include "core/table.h"

namespace orvex::judgement {

// Of the first row of a chain: which houses of the matter the sub lord names and in which levels,
// and its marks. "Sub lord VE names 2 (L1) of the supporting houses and 1 (L4), 10 (L3) of the
// denying ones. It is not retrograde, nor in the star or sub of a retrograde planet." It says no
// verdict. "" of a chain without rows.
std::string ChainSentence(const core::Table& matterChain);

}  // namespace orvex::judgement
