// The Vastu plan as it is drawn: four small tables round the middle, each with sectors of direction
// and eight pads.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace orvex::vedic {

enum class PlanSide { North, East, South, West };

// A direction of the compass on the plan. It covers the pads of its side from FirstPad to LastPad,
// 1 to 8 along the table.
struct PlanSector {
  const char* Direction;
  const char* Tooltip;
  const char* Background;
  int FirstPad;
  int LastPad;
};

// The sectors of a side along its table: north and south from west to east, east and west from
// north to south. The corner directions stand on both of their sides.
std::array<PlanSector, 5> SectorsOfSide(PlanSide side);

// The rows of the table of pads that stand along a side, in the order of its sectors. North and
// east run up, south and west down, so that the plan goes clockwise.
std::array<std::size_t, 8> PadsOfSide(PlanSide side);

// The slice of the circle of a pad by its row 0 to 31, as "326.25 to 337.5 degrees".
std::string PadSliceText(std::size_t pad);

}  // namespace orvex::vedic
