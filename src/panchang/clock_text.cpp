#include "panchang/clock_text.h"

#include <stdexcept>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::panchang {

core::DateTime ClockOn(core::DateTime date, std::string_view text) {
  const std::size_t colon = text.find(':');
  const std::size_t blank = text.find(' ');
  if (colon == std::string_view::npos || blank == std::string_view::npos || blank < colon) {
    throw std::invalid_argument("a text that is no clock time");
  }
  const std::optional<std::int64_t> hour = core::ParseWhole(text.substr(0, colon));
  const std::optional<std::int64_t> minute =
      core::ParseWhole(text.substr(colon + 1, blank - colon - 1));
  const std::string half(text.substr(blank + 1));
  const bool clock = hour && minute && text.front() != '-' && *hour <= 23 && *minute >= 0 &&
                     *minute <= 59 && (half == "AM" || half == "PM");
  if (!clock) {
    throw std::invalid_argument("a text that is no clock time");
  }
  const std::int64_t afternoon = half == "PM" ? 12 : 0;
  const std::int64_t hourOfDay = *hour > 12 ? *hour : *hour % 12 + afternoon;
  return AddMinutes(core::DateOnly(date), hourOfDay * 60 + *minute);
}

std::int64_t MinutesBetween(core::DateTime from, core::DateTime to) {
  return std::chrono::floor<std::chrono::minutes>(to - from).count();
}

core::DateTime AddMinutes(core::DateTime moment, std::int64_t minutes) {
  return core::DateAdd(core::DateInterval::Minutes, minutes, moment);
}

}  // namespace orvex::panchang
