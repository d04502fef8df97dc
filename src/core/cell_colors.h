// The colours of cells.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/aspect_bands.h"

namespace orvex::core {

inline constexpr const char* kGoodColor = "CAFACB";
inline constexpr const char* kHardColor = "FACACA";
inline constexpr const char* kNeutralColor = "FFFFFF";
inline constexpr const char* kAscendantTint = "FFFBB3";  // the first house in charts
inline constexpr const char* kRed = "FF0000";

// The colour number (red + 256 green + 65536 blue) of six hexadecimal digits of red, green and
// blue. std::invalid_argument for any other text.
std::int32_t ColorFromHex(std::string_view text);

// The colour of the cell of an aspect angle in degrees: good, hard or neutral by its band.
const char* AspectCellColor(const AspectBandLimits& bands, float angle);

// The colour of a value cell: "#FFFFFF" for -1 and 16777215, otherwise the tint of the
// ascendant.
std::string ValueCellColor(float value);

}  // namespace orvex::core
