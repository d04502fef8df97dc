// The two tables of the divisions. Degrees are within the sign, bounds inclusive.
#pragma once

#include <array>

namespace orvex::vedic {

struct DivisionRow {
  float Start;
  float End;
  std::array<int, 12> Signs;  // sign in the division for signs 1 to 12
};

extern const std::array<DivisionRow, 9> kNavamshaTable;
extern const std::array<DivisionRow, 10> kDashamshaTable;

}  // namespace orvex::vedic
