// The 24 planetary hours of a day and its night.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/session.h"
#include "core/table.h"

namespace orvex::panchang {

enum class HoraColumn { Planet, Start, End };

struct Hora {
  std::string Planet;
  core::DateTime Start;
  core::DateTime End;
};

// The twelve horas of a day from its sunrise text to its sunset text. Hours have whole minutes, so
// the twelfth ends up to six minutes off the sunset. std::invalid_argument where a text is no clock
// time.
std::vector<Hora> DayHorasOf(core::DateTime date, const std::string& sunrise,
                             const std::string& sunset);

// The twelve horas of the night of a date, from its sunset text to the next day's sunrise text. A
// printed time with "AM" lies on the next date, any other on `date`, each time by itself.
std::vector<Hora> NightHorasOf(core::DateTime date, const std::string& sunset,
                               const std::string& nextSunrise);

// Planet, start and end; the tags of both are the full moments.
core::Table HoraTable(const std::vector<Hora>& horas);

// The row of a hora table that holds a moment; of two that touch the later one. Nothing where none
// does.
std::optional<std::size_t> RunningHora(const core::Table& horas, core::DateTime moment);

struct HoraView {
  std::string Title;
  std::string Sunrise;
  std::string Sunset;  // the end of the twelfth day hora
  core::Table DayHoras;
  core::Table NightHoras;
};

// The horas of a date in a city; nothing where there is no such city. Where the Sun does not rise
// or set the tables and labels stay empty. The night ends at the sunrise of the user city, whatever
// the city is: what is shown for other cities depends on it. That sunrise is left in the session.
std::optional<HoraView> CalcHora(core::Session& session, core::DateTime date, std::int32_t cityId);

}  // namespace orvex::panchang
