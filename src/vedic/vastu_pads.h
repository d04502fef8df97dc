// The 32 door pads of the Vastu plan.
#pragma once

#include <array>
#include <cstddef>

#include "core/cell_colors.h"

namespace orvex::vedic {

inline constexpr std::size_t kPads = 32;

// The colours of the plan.
inline constexpr const char* kPlanBlue = "5FB5D4";
inline constexpr const char* kPlanGreen = "B7DA7F";
inline constexpr const char* kPlanRed = "E97E7A";
inline constexpr const char* kPlanYellow = "FEFA85";
inline constexpr const char* kPlanWhite = core::kNeutralColor;

// A pad, the sign that strikes it and its two deities, the inner one nearer the middle of the plan.
struct VastuPad {
  const char* Name;
  int Sign;
  const char* Inner;
  const char* Outer;
  const char* Background;  // of the cell with its name
};

// Clockwise from the west end of the north side. The signs differ from those that the directions
// name for E4, S8 and W1; the marking of struck pads goes by the signs here.
extern const std::array<VastuPad, kPads> kVastuPads;

}  // namespace orvex::vedic
