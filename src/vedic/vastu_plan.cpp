#include "vedic/vastu_plan.h"

#include <string_view>

#include "core/exact_numbers.h"
#include "vedic/vastu_pads.h"

namespace orvex::vedic {

namespace {

constexpr std::size_t kPadsOfSide = 8;

struct PlanDirection {
  const char* Name;
  const char* Tooltip;
  const char* Background;
};

// Clockwise from the north-west corner. The start of East is 78.25, not the 78.75 that ends ENE:
// the text is shown so.
// clang-format off
constexpr std::array<PlanDirection, 16> kDirections = {{
    {"NW",    "Support/Banking (303.75 to 326.25 degrees)",      kPlanWhite},
    {"NNW",   "Sex/Attraction (326.25 to 348.75 degrees)",       kPlanBlue},
    {"North", "Money/Opportunities (348.75 to 11.25 degrees)",   kPlanBlue},
    {"NNE",   "Health/Immunity (11.25 to 33.75 degrees)",        kPlanBlue},
    {"NE",    "Clarity/Mind (33.75 to 56.25 degrees)",           kPlanBlue},
    {"ENE",   "Recreation/Fun (56.25 to 78.75 degrees)",         kPlanGreen},
    {"East",  "Social/Associations (78.25 to 101.25 degrees)",   kPlanGreen},
    {"ESE",   "Anxiety/Churning (101.25 to 123.75 degrees)",     kPlanGreen},
    {"SE",    "Fire/Cash/Liquidity (123.75 to 146.25 degrees)",  kPlanRed},
    {"SSE",   "Power/Confidence (146.25 to 168.75 degrees)",     kPlanRed},
    {"South", "Relaxation/Fame (168.75 to 191.25 degrees)",      kPlanRed},
    {"SSW",   "Expenditure/Disposal (191.25 to 213.75 degrees)", kPlanYellow},
    {"SW",    "Relationship/Skill (213.75 to 236.25 degrees)",   kPlanYellow},
    {"WSW",   "Education/Savings (236.25 to 258.75 degrees)",    kPlanWhite},
    {"West",  "Gains/Profits (258.75 to 281.25 degrees)",        kPlanWhite},
    {"WNW",   "Depression/Detoxify (281.25 to 303.75 degrees)",  kPlanWhite},
}};
// clang-format on

bool RunsDown(PlanSide side) { return side == PlanSide::South || side == PlanSide::West; }

}  // namespace

std::array<PlanSector, 5> SectorsOfSide(PlanSide side) {
  constexpr std::size_t kStepsOfSide = 4;
  const std::size_t corner = static_cast<std::size_t>(side) * kStepsOfSide;
  std::array<PlanSector, 5> sectors{};
  for (std::size_t i = 0; i < sectors.size(); ++i) {
    const std::size_t step = RunsDown(side) ? kStepsOfSide - i : i;
    const PlanDirection& direction = kDirections.at((corner + step) % kDirections.size());
    const int place = static_cast<int>(i);
    const int firstPad = i == 0 ? 1 : 2 * place;
    const int lastPad = i == kStepsOfSide ? firstPad : 2 * place + 1;
    sectors.at(i) = {direction.Name, direction.Tooltip, direction.Background, firstPad, lastPad};
  }
  return sectors;
}

std::array<std::size_t, 8> PadsOfSide(PlanSide side) {
  const std::size_t first = static_cast<std::size_t>(side) * kPadsOfSide;
  std::array<std::size_t, kPadsOfSide> pads{};
  for (std::size_t place = 0; place < pads.size(); ++place) {
    pads.at(place) = RunsDown(side) ? first + kPadsOfSide - 1 - place : first + place;
  }
  return pads;
}

std::string PadSliceText(std::size_t pad) {
  constexpr double kSlice = 11.25;
  constexpr std::size_t kPadAtNorth = 4;
  const double start = kSlice * static_cast<double>((pad + kPads - kPadAtNorth) % kPads);
  return core::DoubleText(start) + " to " + core::DoubleText(start + kSlice) + " degrees";
}

}  // namespace orvex::vedic
