#include "panchang/hora.h"

#include <array>

#include "astro/sun_events.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "panchang/clock_text.h"

namespace orvex::panchang {

namespace {

constexpr std::size_t kHoras = 12;

// The Chaldean order, and the place in it of the first hora of each day and night, Sunday first: a
// day begins with its lord, a night with the fifth planet after it.
constexpr std::array<const char*, 7> kChaldean = {"Saturn", "Jupiter", "Mars", "Sun",
                                                  "Venus",  "Mercury", "Moon"};
constexpr std::array<std::size_t, 7> kFirstOfDay = {3, 6, 2, 5, 1, 4, 0};
constexpr std::array<std::size_t, 7> kFirstOfNight = {1, 4, 0, 3, 6, 2, 5};

std::string PlanetOfHora(const std::array<std::size_t, 7>& first, core::DateTime date,
                         std::size_t hora) {
  const auto weekday = static_cast<std::size_t>(core::WeekdayNumber(date)) - 1;
  return kChaldean.at((first.at(weekday) + hora) % kChaldean.size());
}

// Minutes of a twelfth, a half goes away from zero.
std::int64_t HoraMinutes(std::int64_t length) {
  return core::ParseWhole(core::FixedText(static_cast<double>(length) / kHoras, 0)).value();
}

core::DateTime NightMoment(core::DateTime date, core::DateTime clock) {
  const core::DateTime onDate = core::DateOnly(date) + (clock - core::DateOnly(clock));
  return core::Contains(core::TimeAmPm(clock), "AM")
             ? core::DateAdd(core::DateInterval::Days, 1, onDate)
             : onDate;
}

}  // namespace

std::vector<Hora> DayHorasOf(core::DateTime date, const std::string& sunrise,
                             const std::string& sunset) {
  core::DateTime cursor = ClockOn(date, sunrise);
  const std::int64_t minutes = HoraMinutes(MinutesBetween(cursor, ClockOn(date, sunset)));
  std::vector<Hora> horas;
  for (std::size_t i = 0; i < kHoras; ++i) {
    const core::DateTime end = AddMinutes(cursor, minutes);
    horas.push_back({PlanetOfHora(kFirstOfDay, date, i), cursor, end});
    cursor = end;
  }
  return horas;
}

std::vector<Hora> NightHorasOf(core::DateTime date, const std::string& sunset,
                               const std::string& nextSunrise) {
  core::DateTime cursor = ClockOn(date, sunset);
  const core::DateTime nextDay = core::DateAdd(core::DateInterval::Days, 1, date);
  const std::int64_t minutes = HoraMinutes(MinutesBetween(cursor, ClockOn(nextDay, nextSunrise)));
  std::vector<Hora> horas;
  for (std::size_t i = 0; i < kHoras; ++i) {
    const core::DateTime end = AddMinutes(cursor, minutes);
    horas.push_back(
        {PlanetOfHora(kFirstOfNight, date, i), NightMoment(date, cursor), NightMoment(date, end)});
    cursor = end;
  }
  return horas;
}

core::Table HoraTable(const std::vector<Hora>& horas) {
  core::Table table{{{"Planet"}, {"Start"}, {"End"}}, {}};
  for (const Hora& hora : horas) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, HoraColumn::Planet).Text = hora.Planet;
    core::Cell& start = table.At(row, HoraColumn::Start);
    start.Text = core::TimeAmPm(hora.Start);
    start.Tag = core::StoredDateTimeText(hora.Start);
    core::Cell& end = table.At(row, HoraColumn::End);
    end.Text = core::TimeAmPm(hora.End);
    end.Tag = core::StoredDateTimeText(hora.End);
  }
  return table;
}

std::optional<std::size_t> RunningHora(const core::Table& horas, core::DateTime moment) {
  for (std::size_t row = horas.Rows.size(); row > 0; --row) {
    const auto start = core::ParseDateTime(horas.At(row - 1, HoraColumn::Start).Tag);
    const auto end = core::ParseDateTime(horas.At(row - 1, HoraColumn::End).Tag);
    if (start && end && *start <= moment && moment <= *end) {
      return row - 1;
    }
  }
  return std::nullopt;
}

std::optional<HoraView> CalcHora(core::Session& session, core::DateTime date, std::int32_t cityId) {
  const core::Result city = session.StoreConnection.Query("Select * from city_master where id = " +
                                                          core::WholeText(cityId));
  if (city.AtEnd()) {
    return std::nullopt;
  }
  core::ApplicationState& state = session.State;
  HoraView view{
      "Hora for " + city.Text("cityname"), "", "", HoraTable({}), HoraTable({}),
  };
  astro::ComputeSunTimes(state, date, static_cast<float>(city.Number("offset")),
                         static_cast<float>(city.Number("latitude")),
                         static_cast<float>(city.Number("longitude")));
  core::Attempt([&] {
    const std::vector<Hora> day = DayHorasOf(date, state.SunriseText, state.SunsetText);
    view.DayHoras = HoraTable(day);
    view.Sunrise = state.SunriseText;
    view.Sunset = core::TimeAmPm(day.back().End);
  });
  core::Attempt([&] {
    astro::ComputeSunTimes(state, core::DateAdd(core::DateInterval::Days, 1, date),
                           state.UserCityOffset, state.UserCityLatitude, state.UserCityLongitude);
    view.NightHoras = HoraTable(NightHorasOf(date, view.Sunset, state.SunriseText));
  });
  return view;
}

}  // namespace orvex::panchang
