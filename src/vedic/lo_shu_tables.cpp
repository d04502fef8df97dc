#include "vedic/lo_shu_tables.h"

namespace orvex::vedic {

namespace {

constexpr const char* kWhite = "FFFFFF";
constexpr const char* kBlack = "000000";

}  // namespace

// clang-format off
const std::array<LoShuCell, 9> kLoShuCells = {{
    {4, "7566CB", kWhite}, {9, "F3392C", kWhite}, {2, "F58CA3", kBlack},
    {3, "6BA326", kWhite}, {5, "F7E96E", kBlack}, {7, "F5F6F1", kBlack},
    {8, "1245C4", kWhite}, {1, "010101", kWhite}, {6, "ACACAC", kBlack},
}};

const std::array<LoShuPlane, 8> kLoShuPlanes = {{
    {"492", "Mental",       "Head of a Person; Includes Thinking, Creating, Imagining, Analyzing"},
    {"357", "Emotional",    "Body of a Person; Includes Spirituality, Intuition, Feelings, Emotions"},
    {"816", "Practical",    "Feet of a Person; Includes Physical Labor, Creativity, Feet firmly on ground"},
    {"438", "Thought",      "Ability to come up with Ideas, Create Things"},
    {"951", "Will Power",   "Determination and Persistence to Succeed"},
    {"276", "Action Power", "Translate thoughts into Action"},
    {"456", "Golden Line",  "Success in everything (Raj Yog)"},
    {"258", "Silver Line",  "Inherit wealth from Ancestors"},
}};

const std::array<LoShuNumber, 9> kLoShuNumbers = {{
    {"1", "Water", "North",       "Career and Planning"},
    {"2", "Earth", "South West",  "Marriage and Happiness"},
    {"3", "Wood",  "East",        "Health and Education"},
    {"4", "Wood",  "South East",  "Wealth and Prosperity"},
    {"5", "Earth", "Brahmasthan", "Stability and Communication"},
    {"6", "Metal", "North West",  "Opportunities and Luxury"},
    {"7", "Metal", "West",        "Creativity and Children"},
    {"8", "Earth", "North East",  "Knowledge and Memory"},
    {"9", "Fire",  "South",       "Energy and Recognition"},
}};
// clang-format on

}  // namespace orvex::vedic
