// The fixed contents of the Lo Shu grid, its planes and its numbers.
#pragma once

#include <array>

namespace orvex::vedic {

// A cell of the grid, row by row.
struct LoShuCell {
  int Number;
  const char* Background;
  const char* Foreground;
};

extern const std::array<LoShuCell, 9> kLoShuCells;

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
