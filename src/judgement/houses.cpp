#include "judgement/houses.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::judgement {

std::vector<int> HousesOfText(const std::string& text) {
  std::vector<int> houses;
  for (const std::string& word : core::SplitWords(text)) {
    if (const std::optional<std::int64_t> house = core::ParseWhole(word)) {
      houses.push_back(static_cast<int>(*house));
    }
  }
  return houses;
}

std::string TextOfHouses(const std::vector<int>& houses) {
  std::vector<std::string> texts;
  texts.reserve(houses.size());
  for (const int house : houses) {
    texts.push_back(core::WholeText(house));
  }
  return core::Join(texts, " ");
}

std::string HousesWithin(const std::vector<int>& asked, const std::vector<int>& there) {
  std::vector<int> within;
  for (const int house : asked) {
    if (std::find(there.begin(), there.end(), house) != there.end()) {
      within.push_back(house);
    }
  }
  std::sort(within.begin(), within.end());
  within.erase(std::unique(within.begin(), within.end()), within.end());
  return TextOfHouses(within);
}

bool HoldsHouse(const std::vector<int>& houses, int house) {
  return std::find(houses.begin(), houses.end(), house) != houses.end();
}

}  // namespace orvex::judgement
