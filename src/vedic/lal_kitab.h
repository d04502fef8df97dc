// The Lal Kitab annual chart: the contents of the natal houses in the houses of a year of life.
#pragma once

#include "chart/horoscope_model.h"

namespace orvex::vedic {

enum class LalKitabColumn { House, Planets };

// The year of life shown for an age in whole years: 1 to 120, for the ages 120 and above over
// again.
int RunningYearOfAge(int age);

// Writes the annual chart of a year 1 to 120 from the houses of the birth, which a rotation does
// not move, into `annual`. A house that no natal house moves to keeps what it showed before.
// std::out_of_range for any other year.
void ShowLalKitabYear(const core::Table& natalHouses, int year, core::Table& annual);

}  // namespace orvex::vedic
