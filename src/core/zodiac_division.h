// The tables that divide the circle, computed from their rules as texts ready for the store.
//
// A row begins at its true border, rounded up to hundredths of a degree, and ends 0.00001 below the
// begin of the next row; the last row ends at 360. Thus a longitude of two decimals lies in one
// row.
#pragma once

#include <string>
#include <vector>

#include "core/tsv.h"

namespace orvex::core {

// A planet of the Vimshottari cycle.
struct DashaLord {
  std::string Name;
  int Years = 0;
};

// The 249 subs: each star of 13 degrees 20 minutes is cut in nine, in the order of the cycle from
// the star's own lord, each part as wide as its lord's years in 120; a part that a sign border
// crosses is cut in two. `cycle` holds the nine lords in order, Ashwini's lord first; `signLords`
// the lords of the twelve signs. Columns of ascendants.
TsvTable DivideIntoSubs(const std::vector<DashaLord>& cycle,
                        const std::vector<std::string>& signLords);

// The 108 quarters of stars, 3 degrees 20 minutes each. Columns of star_details.
TsvTable DivideIntoPadas();

// The 60 half tithis of 6 degrees, one a karan. Columns of tithi_master.
TsvTable DivideIntoHalfTithis();

}  // namespace orvex::core
