// The lord of the day, which begins at sunrise.
#pragma once

#include <string>

#include "judgement/moment_of_judgement.h"

namespace orvex::judgement {

struct LordOfDay {
  std::string BySunrise;
  std::string ByCalendar;
};

// The planets of the weekday of a moment, from sunrise to sunrise of its place by the program's own
// sun times, and from midnight to midnight. Where the Sun does not rise the two are one. A moment
// in the minute of sunrise belongs to the new day.
LordOfDay LordOfDayAt(const MomentOfJudgement& moment);

}  // namespace orvex::judgement
