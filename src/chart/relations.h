// Who is read from a house.
#pragma once

#include <string>

namespace orvex::chart {

// The relation by which a house (1 to 12) is taken as the first: "spouse, partner" of 7. "" where
// none is customary.
std::string RelationOf(int house);

// "7 · spouse, partner", "8".
std::string HouseWithRelation(int house);

}  // namespace orvex::chart
