// The hora in force, in the sky view.
#pragma once

#include "panchang/sky_view.h"

namespace orvex::panchang {

// Fills the hora tables of the instant's day from the two sun texts as they stand, and the captions
// of the hora in force; where no hora holds the instant the captions stay as they were.
//
// It leaves the next day's sunrise in the session, or yesterday's where the instant lies before
// sunrise. The kaals and muhurtas are reckoned from there.
void BuildCurrentHora(core::Session& session, SkyView& view, core::DateTime now);

}  // namespace orvex::panchang
