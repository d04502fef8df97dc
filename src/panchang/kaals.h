// The kaals and muhurtas of a day. All take a sunrise text and the length of the day in minutes,
// and throw std::invalid_argument where the text is no clock time.
#pragma once

#include <string>
#include <string_view>

#include "core/date_text.h"

namespace orvex::panchang {

// The ordinals, 1 to 8, of the eighths of the day that end with each kaal.
struct KaalRow {
  int RahuSlot;
  int GulikaSlot;
  int YamagandaSlot;
};

// The row of a date's weekday.
const KaalRow& KaalsOf(core::DateTime date);

// "03:15 PM to 04:37 PM": the eighth of the day with the ordinal. The eighth is a whole number of
// minutes, a half goes to the even one.
std::string KaalText(int slotOrdinal, std::int64_t dayMinutes, std::string_view sunriseText);

// From 96 to 48 minutes before sunrise. The clock has 24 hours and a marker behind it all the same:
// "05:27 AM to 06:15 AM".
std::string BrahmaMuhurtaText(std::string_view sunriseText, core::DateTime today);

// The eighth of fifteen parts of the day in the same form ("12:19 PM to 13:07 PM"); a fixed text on
// "Wednesday".
std::string AbhijitMuhurtaText(std::string_view sunriseText, std::int64_t dayMinutes,
                               std::string_view weekday);

}  // namespace orvex::panchang
