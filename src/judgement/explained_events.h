// Which events of a life a horoscope explains by its periods.
#pragma once

#include "chart/horoscope_model.h"
#include "core/reference_data.h"
#include "judgement/life_events.h"

namespace orvex::judgement {

// Whether all three lords that run on the event's day, of Dasha, Bhukti and Antara, signify a main
// or supporting house of its matter by the grades A to D. No for an event whose matter is gone and
// for a day outside the periods.
bool IsExplained(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                 const LifeEvent& event);

}  // namespace orvex::judgement
