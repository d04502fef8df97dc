// Lists of houses as texts: numbers with blanks between them.
#pragma once

#include <string>
#include <vector>

namespace orvex::judgement {

// The houses that a text lists; what is no number is left out.
std::vector<int> HousesOfText(const std::string& text);

// "2 11", in the order given.
std::string TextOfHouses(const std::vector<int>& houses);

// Those of `asked` that are among `there`, each once, ascending, as text.
std::string HousesWithin(const std::vector<int>& asked, const std::vector<int>& there);

// Whether a house is among them.
bool HoldsHouse(const std::vector<int>& houses, int house);

}  // namespace orvex::judgement
