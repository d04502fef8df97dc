#include "judgement/chain_sentence.h"

#include <algorithm>
#include <array>
#include <vector>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "judgement/houses.h"
#include "judgement/matter_chain.h"
#include "judgement/planet_marks.h"

namespace orvex::judgement {

namespace {

struct Level {
  ChainColumn Column;
  const char* Name;
};

constexpr std::array<Level, 4> kNamedLevels = {{{ChainColumn::L1, "L1"},
                                                {ChainColumn::L2, "L2"},
                                                {ChainColumn::L3, "L3"},
                                                {ChainColumn::L4, "L4"}}};

// "2 (L1), 11 (L2 L4)": the houses of a cell with the levels that name them.
std::string HousesWithLevels(const core::Table& chain, ChainColumn houses) {
  std::vector<std::string> texts;
  for (const int house : HousesOfText(chain.At(0, houses).Text)) {
    std::vector<std::string> levels;
    for (const Level& level : kNamedLevels) {
      const std::vector<int> named = HousesOfText(chain.At(0, level.Column).Text);
      if (std::find(named.begin(), named.end(), house) != named.end()) {
        levels.emplace_back(level.Name);
      }
    }
    texts.push_back(core::WholeText(house) + " (" + core::Join(levels, " ") + ")");
  }
  return core::Join(texts, ", ");
}

std::string MarksSentence(const std::string& marks) {
  constexpr std::array<std::array<const char*, 2>, 4> kWords = {
      {{"R", "retrograde"},
       {kStarOfRetrograde, "in the star of a retrograde planet"},
       {kSubOfRetrograde, "in the sub of a retrograde planet"},
       {"C", "combust"}}};
  const std::vector<std::string> present = core::Split(core::ReplaceAll(marks, ", ", ","), ',');
  std::vector<std::string> words;
  bool ofRetrograde = false;
  for (const auto& [mark, word] : kWords) {
    if (std::find(present.begin(), present.end(), mark) != present.end()) {
      words.emplace_back(word);
      ofRetrograde = ofRetrograde || std::string(mark) != "C";
    }
  }
  if (!ofRetrograde) {
    words.emplace_back("not retrograde, nor in the star or sub of a retrograde planet");
  }
  return "It is " + core::Join(words, ", ") + ".";
}

}  // namespace

std::string ChainSentence(const core::Table& matterChain) {
  if (matterChain.Rows.empty()) {
    return "";
  }
  const std::string& planet = matterChain.At(0, ChainColumn::Planet).Text;
  if (planet.empty()) {
    return "The chart does not tell the sub lord of this cusp.";
  }
  const std::string giving = HousesWithLevels(matterChain, ChainColumn::Supporting);
  const std::string denying = HousesWithLevels(matterChain, ChainColumn::Denying);
  return "Sub lord " + chart::PlanetCode(planet) + " names " + (giving.empty() ? "none" : giving) +
         " of the supporting houses and " + (denying.empty() ? "none" : denying) +
         " of the denying ones. " + MarksSentence(matterChain.At(0, ChainColumn::Marks).Text);
}

}  // namespace orvex::judgement
