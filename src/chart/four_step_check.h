// What each planet gives through itself, its star lord, its sub lord and the star lord of that.
#pragma once

#include <string>

#include "chart/horoscope_model.h"

namespace orvex::chart {

// In planet-row order; the tag of a signification has no cusp mark.
enum class SignificationColumn { Planet, Degree, Sig };
enum class FourStepColumn { Planet, Step1, Step2, Step3, Step4 };

// Rebuilds FourStepTable and FourStepRows.
void BuildFourStep(HoroscopeModel& model);

// Fills the row of a planet. A planet that is not in the table leaves its row empty.
void FourStepCheck(HoroscopeModel& model, const std::string& planetName, std::size_t rowIndex);

}  // namespace orvex::chart
