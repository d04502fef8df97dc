// The whole-house aspects of the planets as texts.
#pragma once

#include "chart/horoscope_model.h"

namespace orvex::vedic {

// Writes "Aspecting" of the Bhrigu Nandi Nadi table: the planets in the seventh house from each
// planet, and in the further houses that Mars, Jupiter and Saturn aspect, as
// "7th - MO RA    10th - VE". Rahu and Ketu aspect nothing.
void CheckandShowAllAspects(chart::HoroscopeModel& model);

}  // namespace orvex::vedic
