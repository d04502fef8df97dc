#include "judgement/day_lord.h"

#include "astro/sun_events.h"
#include "chart/ruling_planets.h"
#include "core/attempt.h"
#include "panchang/clock_text.h"

namespace orvex::judgement {

LordOfDay LordOfDayAt(const MomentOfJudgement& moment) {
  // Sun times of its own: those of the session belong to the sky view.
  core::ApplicationState sunTimes;
  astro::ComputeSunTimes(sunTimes, moment.Local, static_cast<float>(moment.Offset),
                         static_cast<float>(moment.Where.Latitude),
                         static_cast<float>(moment.Where.Longitude));
  core::DateTime day = core::DateOnly(moment.Local);
  core::Attempt([&] {
    if (moment.Local < panchang::ClockOn(moment.Local, sunTimes.SunriseText)) {
      day = core::DateAdd(core::DateInterval::Days, -1, day);
    }
  });
  return {chart::DayLord(day), chart::DayLord(moment.Local)};
}

}  // namespace orvex::judgement
