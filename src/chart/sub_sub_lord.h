// The fourth lord of a longitude.
#pragma once

#include <string>

#include "core/reference_data.h"

namespace orvex::chart {

// The lord of the part of a sub in which a longitude of two decimals lies. The sub is cut in nine
// like a star, from its own lord on; begins of parts are rounded to two decimals, ends are not. A
// longitude that no part holds has the sub lord itself. LookupError where no sub holds it.
std::string SubSubLord(const core::ReferenceData& reference, double degree);

}  // namespace orvex::chart
