// The grid of South Indian charts: signs stand in fixed cells around an empty middle.
#pragma once

#include <array>
#include <string>

namespace orvex::chart {

inline constexpr std::size_t kSouthSide = 4;

// Sign numbers of the cells, 0 in the middle.
inline constexpr std::array<std::array<int, kSouthSide>, kSouthSide> kSouthSigns = {
    {{12, 1, 2, 3}, {11, 0, 0, 4}, {10, 0, 0, 5}, {9, 8, 7, 6}}};

// Whether a cell lies in the empty middle.
constexpr bool IsSouthMiddle(std::size_t row, std::size_t column) {
  return kSouthSigns.at(row).at(column) == 0;
}

struct SouthCell {
  int Sign = 0;
  std::string Text;
  std::string Background;
};

}  // namespace orvex::chart
