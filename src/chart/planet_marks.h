// The marks that stand behind a planet's code, in charts, tables and the status line.
#pragma once

namespace orvex::chart {

inline constexpr const char* kCombustMark = "*";
inline constexpr const char* kRetrogradeMark = "~";

}  // namespace orvex::chart
