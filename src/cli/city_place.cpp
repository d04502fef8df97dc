#include "cli/city_place.h"

#include "core/exact_numbers.h"
#include "exact/crossings_table.h"
#include "practice/cities.h"
#include "transit/calendar_export.h"

namespace orvex::cli {

namespace {

std::chrono::seconds UserClock(const core::Session& session) {
  return exact::OffsetOf(static_cast<double>(session.State.UserCityOffset));
}

}  // namespace

CityPlace CityPlaceOf(core::Session& session, const std::string& option) {
  const core::ApplicationState& state = session.State;
  if (option.empty()) {
    return {
        {static_cast<double>(state.UserCityLatitude), static_cast<double>(state.UserCityLongitude)},
        static_cast<double>(state.UserCityOffset),
        UserClock(session)};
  }
  const std::optional<practice::CityForm> city =
      practice::OpenEditCity(session, WholeOption("--city", option));
  if (!city) {
    throw CommandFailed("");
  }
  const double hours = core::ToDouble(city->Offset);
  return {{core::ToDouble(city->Latitude), core::ToDouble(city->Longitude)},
          hours,
          exact::OffsetOf(hours)};
}

core::DateTime NowAt(const core::Session& session, const CityPlace& city) {
  return session.Time.Now() - UserClock(session) + city.Clock;
}

void WriteCalendar(const core::Session& session, const std::string& file,
                   const std::vector<transit::CalendarEvent>& events) {
  if (!file.empty()) {
    transit::WriteCalendar(session, file, events);
  }
}

}  // namespace orvex::cli
