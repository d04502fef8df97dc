// The lords of the Ascendant before and after its birth is moved.
#pragma once

#include "horoscope/recalculation.h"

namespace orvex::horoscope {

enum class MovedLordsColumn { Of, Position, SignLord, StarLord, SubLord, SubSubLord };

// Two rows, "Old" of the birth and "New" of a form, read to the second by the ayanamsa of the
// settings. A lord that is another one than the old one is bold and tinted. No rows for a chart
// whose Ascendant is given and for a form that Recalculate refuses.
core::Table MovedLords(core::Session& session, const chart::HoroscopeModel& model,
                       const RecalculationForm& form);

}  // namespace orvex::horoscope
