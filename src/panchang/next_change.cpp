#include "panchang/next_change.h"

#include <array>

#include "core/date_text.h"
#include "exact/crossings_table.h"

namespace orvex::panchang {

namespace {

// Short looks first: the Ascendant changes within minutes, the Moon within hours.
constexpr std::array kLooks = {std::chrono::hours(1), std::chrono::hours(8),
                               std::chrono::hours(48)};

std::string TimeText(core::DateTime change, core::DateTime now) {
  const std::string time = " at " + core::ShortTimeText(change);
  return core::DateOnly(change) == core::DateOnly(now)
             ? time
             : " on " + core::LongDateText(change, true) + time;
}

}  // namespace

std::string NextChangeText(core::Session& session, exact::Point point, core::DateTime now) {
  const core::ApplicationState& state = session.State;
  const auto offset = exact::OffsetOf(static_cast<double>(state.UserCityOffset));
  const exact::ExactZodiac zodiac(session.Reference);
  const exact::ExactSky sky(session.Ephemeris, exact::ReadingOf(session),
                            state.RahuKetuCalculation);
  exact::CrossingSearch search;
  search.Body = point;
  search.From = now - offset;
  search.Where = {static_cast<double>(state.UserCityLatitude),
                  static_cast<double>(state.UserCityLongitude)};
  for (const std::chrono::hours look : kLooks) {
    search.To = search.From + look;
    const std::vector<exact::Crossing> spans = exact::Crossings(sky, zodiac, search);
    if (spans.size() > 1) {
      return exact::ChangeText(zodiac, exact::PointName(point), spans[0].Longitude,
                               spans[1].Longitude, search.Down) +
             TimeText(spans[1].From + offset, now);
    }
  }
  return "";
}

}  // namespace orvex::panchang
