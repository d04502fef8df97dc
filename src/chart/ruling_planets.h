// The ruling planets of a chart and the small birth points shown beside them.
#pragma once

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::chart {

// The planet of the weekday of a date.
std::string DayLord(core::DateTime date);

// The seven rulers, and their names joined with "*" as caption.
void BuildRulingPlanets(HoroscopeModel& model);

// Moon plus Ascendant less Sun, in degrees without the noise of binary fractions. Above 360 the
// excess counts.
double PartOfFortune(double moon, double ascendant, double sun);

// The caption of the Part of Fortune.
void WritePartOfFortune(const core::ReferenceData& reference, HoroscopeModel& model);

// The Badhak house of the ascendant's sign; another number leaves the caption as it was.
void WriteBadhakHouse(HoroscopeModel& model);

}  // namespace orvex::chart
