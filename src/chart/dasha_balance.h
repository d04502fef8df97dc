// What is left at birth of the first Vimshottari period.
#pragma once

#include <string>

namespace orvex::chart {

// Years, months and days of the first period that are left at birth.
struct DashaBalance {
  int Years = 0;
  int Months = 0;
  int Days = 0;
};

// The balance of the first period for a Moon that stands `moonDegree` in a quarter (1 to 4) that
// begins at `quarterBegin`, both in degrees of two decimals; the lord of the star rules `years`.
// Every step is rounded, and of the years only two digits of the fraction count.
DashaBalance BalanceAtBirth(double moonDegree, double quarterBegin, int quarter, int years);

// "Venus Dasha balance at birth: 3 Year(s), 2 Month(s), 1 Day(s)".
std::string BalanceText(const std::string& planet, const DashaBalance& balance);

}  // namespace orvex::chart
