// The houses of the Lal Kitab annual charts.
#pragma once

#include <array>

namespace orvex::vedic {

// The row of a year of life 1 to 120 gives, for each natal house, its house in the annual chart.
// The rows of the years 76 and 96 name one house twice and leave one out; they stay so, for the
// chart shows what follows from it.
extern const std::array<std::array<int, 12>, 120> kLalKitabYears;

}  // namespace orvex::vedic
