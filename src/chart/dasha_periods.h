// The arithmetic of the Vimshottari periods: whole calendar days, each level by its own rule. A
// period is a pair of dates, never a duration.
#pragma once

#include <string>
#include <vector>

#include "chart/dasha_balance.h"
#include "chart/dasha_cycle.h"
#include "core/date_text.h"

namespace orvex::chart {

// A period of a planet, from midnight to midnight.
struct Period {
  DashaPlanet Planet;
  core::DateTime Start;
  core::DateTime End;
};

// The nine periods from that of `first`, which ends at birth plus the balance. The first one begins
// before birth. core::DateRangeError outside the years 100 to 9999, also below.
std::vector<Period> DashaPeriods(const DashaCycle& cycle, const DashaPlanet& first,
                                 core::DateTime birth, const DashaBalance& balance);

// The nine parts of a Dasha, in calendar months and in tenths of a month of three days.
std::vector<Period> BhuktiPeriods(const DashaCycle& cycle, const Period& dasha);

// The nine parts of a Bhukti, in days by the years of the three planets.
std::vector<Period> AntaraPeriods(const DashaCycle& cycle, const Period& dasha,
                                  const Period& bhukti);

// The nine parts of an Antara, in days in proportion to its span.
std::vector<Period> SookshmaPeriods(const DashaCycle& cycle, const Period& antara);

}  // namespace orvex::chart
