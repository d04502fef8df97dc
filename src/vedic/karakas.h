// The seven Jaimini karakas.
#pragma once

#include <vector>

#include "chart/horoscope_model.h"

namespace orvex::vedic {

enum class KarakaColumn { Karaka, Planet, Degree };

// Orders degrees from the least to the greatest.
void SortDegrees(std::vector<float>& degrees);

// The planets but Rahu and Ketu by their degree within the sign, the greatest first. Of planets at
// one degree the first of the planet table stands for all of them and the others in no row. Planets
// without a degree are left out.
void BuildKarakaTable(chart::HoroscopeModel& model);

}  // namespace orvex::vedic
