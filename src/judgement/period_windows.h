// The spans of time that a reader of periods asks for: years ahead, years of a life, a whole life.
#pragma once

#include <optional>
#include <string>

#include "chart/horoscope_model.h"
#include "judgement/matter_periods.h"

namespace orvex::judgement {

// So many years from a moment on.
PeriodWindow YearsFrom(core::DateTime from, int years);

// The years of age from `first` to the end of `last`.
struct AgeSpan {
  int First = 0;
  int Last = 0;
};

// "25", "25-30", "25 to 30": ages 0 to 120, the second not below the first; nothing for any other
// text.
std::optional<AgeSpan> ReadAges(const std::string& text);

// "25" or "25-30".
std::string AgesText(const AgeSpan& ages);

// From the birthday of the first age to that behind the last.
PeriodWindow WindowOfAges(core::DateTime birth, const AgeSpan& ages);

// All periods of a horoscope, from birth on; nothing where it has none.
std::optional<PeriodWindow> WholeLife(const core::ReferenceData& reference,
                                      const chart::HoroscopeModel& model);

// Ten years from a moment on; the whole life of one whose periods are over by then.
PeriodWindow UsualWindow(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                         core::DateTime now);

}  // namespace orvex::judgement
