// A point of the zodiac in words.
#pragma once

#include <string>

#include "core/reference_data.h"

namespace orvex::chart {

// "21.55/Ari (Mars/Venus/Jupiter)  |  Bharani - Pada 3" of a longitude in degrees: degree, sign and
// lords, then star and quarter. A half of it that no reference row holds stays out; 360 has no
// sign.
std::string PointText(const core::ReferenceData& reference, double degree);

}  // namespace orvex::chart
