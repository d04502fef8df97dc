// From local birth data to the moment in UT.
#pragma once

#include <string>

#include "core/date_text.h"

namespace orvex::chart {

// The UT moment of a birth or query. `offset` (hours east) and `longitude` (degrees east) are the
// texts entered, `cityOffset` the hours of the selected city. East of Greenwich the clock's offset
// counts; west of it (an offset written with "-") the local mean time of the longitude does, and
// with an offset that differs from the city's the difference goes in too. std::invalid_argument for
// texts that are no numbers, core::DateRangeError outside the years 100 to 9999.
core::DateTime ChartMomentUt(core::DateTime local, const std::string& offset,
                             const std::string& longitude, double cityOffset);

// The same by the choice of the settings: 'C' takes the clock's offset on both sides of Greenwich,
// anything else is as above.
core::DateTime ChosenMomentUt(char birthMoment, core::DateTime local, const std::string& offset,
                              const std::string& longitude, double cityOffset);

// The UT moment of an instant chart. It differs from a birth's on the negative side: the minutes
// are added without their sign.
core::DateTime InstantMomentUt(core::DateTime local, float offset, float longitude);

// The UT moment by the offset alone, as the sky and the transit tools take it.
core::DateTime PlainMomentUt(core::DateTime local, float offset);

}  // namespace orvex::chart
