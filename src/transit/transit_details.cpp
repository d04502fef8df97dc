#include "transit/transit_details.h"

#include "core/exact_numbers.h"
#include "core/text.h"
#include "transit/changes.h"
#include "transit/hour_table.h"
#include "transit/monthly_grid.h"

namespace orvex::transit {

namespace {

DayButton ButtonTo(core::DateTime date) {
  const int year = core::PartsOf(date).Year;
  return {core::WeekdayName(date) + ", " + core::LongDateText(date, false),
          year != kFirstGridYear - 1 && year != kLastGridYear + 1};
}

}  // namespace

TransitDetails GetTransitForPlanet(core::Session& session, Planet planet, core::DateTime date) {
  date = core::DateOnly(date);
  TransitDetails view;
  view.Hours = BuildHourTable(session, planet, date, session.State.UserCityOffset, "Hour");
  const std::string name = PlanetName(planet);
  view.Changes = BuildChanges(session, {exact::PointOfName(name).value()}, date,
                              date + std::chrono::days(1), session.State.UserCityOffset);
  view.Title = "Transit Details for " + name + " (" + core::LongDateText(date, false) + ", " +
               core::WeekdayName(date) + ")";
  view.Tag =
      core::WholeText(static_cast<int>(planet)) + "*" + name + "*" + core::StoredDateTimeText(date);
  view.PreviousDay = ButtonTo(date - std::chrono::days(1));
  view.NextDay = ButtonTo(date + std::chrono::days(1));
  view.TodayLink = date != session.Time.Today();
  return view;
}

std::optional<MinuteDetails> GetMinuteDetails(core::Session& session, Planet planet,
                                              const std::string& hourTag) {
  const std::optional<core::DateTime> start = core::ParseDateTime(hourTag);
  if (!start) {
    return std::nullopt;
  }
  return MinuteDetails{core::ShortTimeText(*start),
                       BuildMinuteTable(session, planet, *start, session.State.UserCityOffset)};
}

std::optional<DetailsSubject> SubjectOfTag(const std::string& tag) {
  const std::vector<std::string> fields = core::Split(tag, '*');
  if (fields.size() != 3) {
    return std::nullopt;
  }
  const std::optional<Planet> planet = PlanetOfName(fields[1]);
  const std::optional<core::DateTime> date = core::ParseDateTime(fields[2]);
  if (!planet || !date) {
    return std::nullopt;
  }
  return DetailsSubject{*planet, *date};
}

}  // namespace orvex::transit
