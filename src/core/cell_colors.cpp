#include "core/cell_colors.h"

#include <charconv>
#include <stdexcept>

namespace orvex::core {

namespace {

std::int32_t HexPair(std::string_view pair) {
  std::int32_t value = 0;
  const char* end = pair.data() + pair.size();
  const auto read = std::from_chars(pair.data(), end, value, 16);
  if (read.ec != std::errc() || read.ptr != end || value < 0) {
    throw std::invalid_argument("a colour that is not six hexadecimal digits");
  }
  return value;
}

}  // namespace

std::int32_t ColorFromHex(std::string_view text) {
  if (text.size() != 6) {
    throw std::invalid_argument("a colour that is not six hexadecimal digits");
  }
  return HexPair(text.substr(0, 2)) + 256 * HexPair(text.substr(2, 2)) +
         65536 * HexPair(text.substr(4, 2));
}

const char* AspectCellColor(const AspectBandLimits& bands, float angle) {
  const int aspect = AspectOfAngle(bands, angle);
  if (aspect < 0) {
    return kNeutralColor;
  }
  return kAspects.at(static_cast<std::size_t>(aspect)).Good ? kGoodColor : kHardColor;
}

std::string ValueCellColor(float value) {
  constexpr float kNoColor = -1;
  constexpr float kWhite = 16777215;
  return std::string("#") + (value == kNoColor || value == kWhite ? kNeutralColor : kAscendantTint);
}

}  // namespace orvex::core
