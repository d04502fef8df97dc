// The fixed contents of the Lo Shu grid, its planes and its numbers.
#pragma once

#include <array>

namespace orvex::vedic {

// A cell of the grid; the cells stand row by row.
struct LoShuCell {
  int Number;
  const char* Background;
  const char* Foreground;
};

inline constexpr std::size_t kLoShuSide = 3;

extern const std::array<LoShuCell, kLoShuSide * kLoShuSide> kLoShuCells;

// A line of three numbers through the grid.
struct LoShuPlane {
  const char* Seq;
  const char* Plane;
  const char* Description;
};

extern const std::array<LoShuPlane, 8> kLoShuPlanes;

// What the numbers 1 to 9 stand for, in order.
struct LoShuNumber {
  const char* No;
  const char* Element;
  const char* Direction;
  const char* Meaning;
};

extern const std::array<LoShuNumber, 9> kLoShuNumbers;

}  // namespace orvex::vedic
