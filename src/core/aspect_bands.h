// The aspect angles with their orbs, and the band of degrees in which each counts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orvex::core {

// The eight aspect angles with the orb and limits of each, in the order in which they are tried.
struct AspectBand {
  int Aspect;             // degrees
  const char* OrbColumn;  // column of the settings row
  int DefaultOrb;         // degrees
  int HighestOrb;         // degrees; the lowest is 0
  bool Good;              // a good aspect, else a hard one
};

inline constexpr std::size_t kAspectCount = 8;

// clang-format off
inline constexpr std::array<AspectBand, kAspectCount> kAspects = {{
    {30,  "Orbit_30",  3,  5, true},
    {60,  "Orbit_60",  5,  5, true},
    {120, "Orbit_120", 8, 10, true},
    {45,  "Orbit_45",  3,  3, false},
    {90,  "Orbit_90",  5,  5, false},
    {135, "Orbit_135", 3,  3, false},
    {150, "Orbit_150", 3,  3, false},
    {180, "Orbit_180", 8, 10, false},
}};
// clang-format on

// Low and high limit of one aspect, whole degrees, both inclusive.
struct BandLimits {
  std::int16_t Low = 0;
  std::int16_t High = 0;
};

// The limits of the eight aspects, in the order of kAspects.
using AspectBandLimits = std::array<BandLimits, kAspectCount>;

// The limits that the default orbs give.
AspectBandLimits DefaultAspectBands();

// The place in kAspects of the first band that holds the angle, both limits inclusive; -1 for none.
int AspectOfAngle(const AspectBandLimits& bands, float angle);

}  // namespace orvex::core
