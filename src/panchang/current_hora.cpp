#include "panchang/current_hora.h"

#include <algorithm>
#include <array>

#include "astro/sun_events.h"
#include "core/attempt.h"
#include "panchang/hora.h"

namespace orvex::panchang {

namespace {

// clang-format off
constexpr std::array<std::pair<const char*, const char*>, 7> kMantras = {{
    {"Sun",     "Om Suryaya Namaha"},
    {"Moon",    "Om Chandraya Namaha"},
    {"Mercury", "Om Budhaya Namaha"},
    {"Venus",   "Om Shukraya Namaha"},
    {"Mars",    "Om Mangalaya Namaha"},
    {"Jupiter", "Om Guruve Namaha"},
    {"Saturn",  "Om Shaneshcharaya Namaha"},
}};
// clang-format on

void SunTimesOfUserCity(core::ApplicationState& state, core::DateTime date) {
  astro::ComputeSunTimes(state, date, state.UserCityOffset, state.UserCityLatitude,
                         state.UserCityLongitude);
}

// At a shared border the later hora wins.
bool FindHora(const std::vector<Hora>& horas, core::DateTime now, SkyCaptions& captions) {
  bool found = false;
  for (const Hora& hora : horas) {
    if (hora.Start <= now && now <= hora.End) {
      captions.CurrentHora =
          hora.Planet + " - " + core::TimeAmPm(hora.Start) + " to " + core::TimeAmPm(hora.End);
      captions.CurrentHoraPlanet = hora.Planet;
      found = true;
    }
  }
  return found;
}

void BuildPreviousNightHora(core::Session& session, SkyView& view, core::DateTime now) {
  core::ApplicationState& state = session.State;
  const core::DateTime yesterday = core::DateAdd(core::DateInterval::Days, -1, core::DateOnly(now));
  SunTimesOfUserCity(state, yesterday);
  core::Attempt([&] {
    FindHora(DayHorasOf(yesterday, state.SunriseText, state.SunsetText), now, view.Captions);
  });
  // Yesterday's night begins at the sunset itself, not at the end of the twelfth day hora.
  core::Attempt([&] {
    FindHora(NightHorasOf(yesterday, state.SunsetText, view.Captions.Sunrise), now, view.Captions);
  });
}

}  // namespace

void BuildCurrentHora(core::Session& session, SkyView& view, core::DateTime now) {
  core::ApplicationState& state = session.State;
  const core::DateTime today = core::DateOnly(now);
  std::vector<Hora> day;
  std::vector<Hora> night;
  view.Captions.Sunrise.clear();
  view.Captions.Sunset.clear();
  core::Attempt([&] {
    day = DayHorasOf(today, state.SunriseText, state.SunsetText);
    view.Captions.Sunrise = state.SunriseText;
    view.Captions.Sunset = core::TimeAmPm(day.back().End);
  });
  core::Attempt([&] {
    SunTimesOfUserCity(state, core::DateAdd(core::DateInterval::Days, 1, today));
    night = NightHorasOf(today, view.Captions.Sunset, state.SunriseText);
  });
  view.DayHoras = HoraTable(day);
  view.NightHoras = HoraTable(night);

  const bool byDay = FindHora(day, now, view.Captions);
  const bool byNight = FindHora(night, now, view.Captions);
  if (!byDay && !byNight) {
    core::Attempt([&] { BuildPreviousNightHora(session, view, now); });
  }
  const auto* mantra = std::find_if(kMantras.begin(), kMantras.end(), [&view](const auto& row) {
    return row.first == view.Captions.CurrentHoraPlanet;
  });
  if (mantra != kMantras.end()) {
    view.Captions.HoraMantra = mantra->second;
  }
}

}  // namespace orvex::panchang
