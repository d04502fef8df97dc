#include "panchang/kaals.h"

#include <array>

#include "core/exact_numbers.h"
#include "panchang/clock_text.h"

namespace orvex::panchang {

namespace {

// Rahu, Gulika, Yamaganda. The Yamaganda of Friday and Saturday stands one slot later than custom
// has it; the shown times depend on that.
// clang-format off
constexpr std::array<KaalRow, 7> kKaals = {{
    {8, 7, 5},  // Sunday
    {2, 6, 4},  // Monday
    {7, 5, 3},  // Tuesday
    {5, 4, 2},  // Wednesday
    {6, 3, 1},  // Thursday
    {4, 2, 8},  // Friday
    {3, 1, 7},  // Saturday
}};
// clang-format on

// Any date serves where only the clock is shown.
constexpr core::DateTime kAnyDate{};

std::string MuhurtaClock(core::DateTime moment) {
  const bool morning = core::PartsOf(moment).Hour < 12;
  return core::ShortTimeText(moment) + (morning ? " AM" : " PM");
}

std::string MuhurtaText(core::DateTime start, core::DateTime end) {
  return MuhurtaClock(start) + " to " + MuhurtaClock(end);
}

std::int64_t PartOfDay(std::int64_t dayMinutes, int parts) {
  return core::RoundToWhole(static_cast<double>(dayMinutes) / parts);
}

}  // namespace

const KaalRow& KaalsOf(core::DateTime date) {
  return kKaals.at(static_cast<std::size_t>(core::WeekdayNumber(date)) - 1);
}

std::string KaalText(int slotOrdinal, std::int64_t dayMinutes, std::string_view sunriseText) {
  const std::int64_t slot = PartOfDay(dayMinutes, 8);
  const core::DateTime end = AddMinutes(ClockOn(kAnyDate, sunriseText), slot * slotOrdinal);
  return core::TimeAmPm(AddMinutes(end, -slot)) + " to " + core::TimeAmPm(end);
}

std::string BrahmaMuhurtaText(std::string_view sunriseText, core::DateTime today) {
  const core::DateTime sunrise = ClockOn(today, sunriseText);
  return MuhurtaText(AddMinutes(sunrise, -96), AddMinutes(sunrise, -48));
}

std::string AbhijitMuhurtaText(std::string_view sunriseText, std::int64_t dayMinutes,
                               std::string_view weekday) {
  if (weekday == "Wednesday") {
    return "N/A on Wednesday's";
  }
  const std::int64_t part = PartOfDay(dayMinutes, 15);
  const core::DateTime sunrise = ClockOn(kAnyDate, sunriseText);
  return MuhurtaText(AddMinutes(sunrise, 7 * part), AddMinutes(sunrise, 8 * part));
}

}  // namespace orvex::panchang
