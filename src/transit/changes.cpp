#include "transit/changes.h"

#include <algorithm>
#include <stdexcept>

#include "exact/crossings_table.h"
#include "exact/stations.h"

namespace orvex::transit {

namespace {

using std::chrono::seconds;

struct Change {
  core::DateTime Moment{};  // UT
  exact::Point Planet = exact::Point::Sun;
  std::string Text;
};

// The entries of a planet; what it is in when the time begins is no change.
void AddEntries(const exact::ExactSky& sky, const exact::ExactZodiac& zodiac,
                const exact::CrossingSearch& search, std::vector<Change>& changes) {
  const std::vector<exact::Crossing> rows = exact::Crossings(sky, zodiac, search);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    changes.push_back({rows[i].From, search.Body,
                       exact::ChangeText(zodiac, exact::PointName(search.Body),
                                         rows[i - 1].Longitude, rows[i].Longitude, search.Down)});
  }
}

void AddStations(const exact::ExactSky& sky, const exact::CrossingSearch& search,
                 std::vector<Change>& changes) {
  for (const exact::Station& station :
       exact::Stations(sky, search.Body, search.From, search.To - seconds(1))) {
    changes.push_back({station.Moment, search.Body,
                       exact::PointName(search.Body) + " turns " +
                           (station.Retrograde ? "retrograde" : "direct")});
  }
}

}  // namespace

core::Table BuildChanges(core::Session& session, const std::vector<exact::Point>& planets,
                         core::DateTime from, core::DateTime to, float zoneHours) {
  const seconds offset = exact::OffsetOf(static_cast<double>(zoneHours));
  const exact::ExactZodiac zodiac(session.Reference);
  const exact::ExactSky sky(session.Ephemeris, exact::ReadingOf(session),
                            session.State.RahuKetuCalculation);
  std::vector<Change> changes;
  for (const exact::Point planet : planets) {
    // A second earlier, so that a change at the very beginning is one.
    const exact::CrossingSearch search{
        planet, from - offset - seconds(1), to - offset, exact::Depth::Sub, {}};
    AddEntries(sky, zodiac, search, changes);
    AddStations(sky, search, changes);
  }
  std::stable_sort(changes.begin(), changes.end(),
                   [](const Change& a, const Change& b) { return a.Moment < b.Moment; });
  core::Table table{{{"Date", 90}, {"Time", 50}, {"Planet", 70}, {"Change", 220}}, {}};
  for (const Change& change : changes) {
    const core::DateTime local = change.Moment + offset;
    table.Rows.push_back({{{core::LongDateText(local, true)},
                           {core::ShortTimeText(local)},
                           {exact::PointName(change.Planet)},
                           {change.Text}},
                          core::StoredDateTimeText(local)});
  }
  return table;
}

core::Table ChangesOfMonth(core::Session& session, int month, int year, float zoneHours) {
  const std::optional<core::DateTime> first = core::MakeDateTime({year, month, 1});
  if (!first) {
    throw std::out_of_range("Value should be a month of the calendar.");
  }
  return BuildChanges(session, {exact::kPlanets.begin(), exact::kPlanets.end()}, *first,
                      core::DateAdd(core::DateInterval::Months, 1, *first), zoneHours);
}

}  // namespace orvex::transit
