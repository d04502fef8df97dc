// What changes next in the sky: the next sign, star or sub of the Ascendant and of the Moon.
#pragma once

#include <string>

#include "core/session.h"
#include "exact/exact_sky.h"

namespace orvex::panchang {

// The next change of a point's lords after an instant of the user city's clock, by the reading to
// the second: "Moon enters the sub of Saturn at 14:07", with its date where it falls on another
// day. Empty where nothing changes within two days, as where the Ascendant stands still.
std::string NextChangeText(core::Session& session, exact::Point point, core::DateTime now);

}  // namespace orvex::panchang
