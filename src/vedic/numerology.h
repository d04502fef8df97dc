// Base and destiny numbers of the birth date.
#pragma once

#include <string>

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::vedic {

// The digit sum of a text of digits, summed again while it has more than one digit, at most three
// sums in all. std::invalid_argument as DigitSum.
int ReducedDigitSum(const std::string& digits);

// Writes the captions Numerology and NumerologyTag from the birth date. LookupError where a number
// has no planet; the tag stands then.
void FillNumerology(const core::ReferenceData& reference, chart::HoroscopeModel& model);

}  // namespace orvex::vedic
