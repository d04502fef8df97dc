#include "transit/calendar_file.h"

#include <libical/ical.h>

#include <cstdlib>
#include <memory>

namespace orvex::transit {

namespace {

icaltimetype TimeOf(core::DateTime moment) {
  const core::DateParts parts = core::PartsOf(moment);
  icaltimetype time = icaltime_null_time();
  time.year = parts.Year;
  time.month = parts.Month;
  time.day = parts.Day;
  time.hour = parts.Hour;
  time.minute = parts.Minute;
  time.second = parts.Second;
  time.zone = icaltimezone_get_utc_timezone();
  return time;
}

icaltimetype DayOf(core::DateTime date) {
  icaltimetype day = TimeOf(core::DateOnly(date));
  day.is_date = 1;
  day.zone = nullptr;
  return day;
}

icalcomponent* EntryOf(const CalendarEvent& event, core::DateTime stampUt) {
  icalcomponent* entry = icalcomponent_new(ICAL_VEVENT_COMPONENT);
  const auto add = [entry](icalproperty* property) { icalcomponent_add_property(entry, property); };
  add(icalproperty_new_uid(event.Uid.c_str()));
  add(icalproperty_new_dtstamp(TimeOf(stampUt)));
  if (event.WholeDay) {
    add(icalproperty_new_dtstart(DayOf(event.Start)));
    add(icalproperty_new_dtend(DayOf(event.End.value_or(event.Start + std::chrono::days(1)))));
  } else {
    add(icalproperty_new_dtstart(TimeOf(event.Start)));
    add(icalproperty_new_dtend(TimeOf(event.End.value_or(event.Start + std::chrono::hours(1)))));
  }
  add(icalproperty_new_summary(event.Summary.c_str()));
  add(icalproperty_new_description(event.Description.c_str()));
  add(icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT));
  return entry;
}

}  // namespace

std::string CalendarText(const std::vector<CalendarEvent>& events, core::DateTime stampUt) {
  const std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)> calendar(
      icalcomponent_new(ICAL_VCALENDAR_COMPONENT), icalcomponent_free);
  icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
  icalcomponent_add_property(calendar.get(), icalproperty_new_prodid("-//Orvex+//Transits//EN"));
  for (const CalendarEvent& event : events) {
    icalcomponent_add_component(calendar.get(), EntryOf(event, stampUt));
  }
  const std::unique_ptr<char, decltype(&std::free)> text(
      icalcomponent_as_ical_string_r(calendar.get()), std::free);
  return text.get();
}

}  // namespace orvex::transit
