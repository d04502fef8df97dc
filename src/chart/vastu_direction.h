// The compass direction of a sign on the Vastu plan.
#pragma once

#include <string>

namespace orvex::chart {

// The direction of a sign 1 to 12; "" for any other number.
std::string VastuDirection(int rashi);

// The pads of that direction, as the column of the sign tells them; "" for any other number.
std::string VastuPadsOfSign(int rashi);

}  // namespace orvex::chart
