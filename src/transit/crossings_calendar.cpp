#include "transit/crossings_calendar.h"

#include "core/text.h"
#include "exact/crossings_table.h"

namespace orvex::transit {

namespace {

// The lords from the sign down to the depth, "Venus - Sun - Jupiter".
std::string LordsText(const exact::Lords& lords) {
  std::string text = lords.Sign;
  for (const std::string* lord : {&lords.Star, &lords.Sub, &lords.SubSub}) {
    text += lord->empty() ? "" : " - " + *lord;
  }
  return text;
}

}  // namespace

std::vector<CalendarEvent> CrossingEvents(const exact::ExactZodiac& zodiac,
                                          const exact::CrossingSearch& search,
                                          const std::vector<exact::Crossing>& crossings) {
  std::vector<CalendarEvent> events;
  const std::string name = exact::PointName(search.Body);
  for (std::size_t i = 1; i < crossings.size(); ++i) {
    const exact::Crossing& now = crossings[i];
    const std::string summary =
        exact::ChangeText(zodiac, name, crossings[i - 1].Longitude, now.Longitude, search.Down);
    const std::string moment = core::ReplaceAll(core::StoredDateTimeText(now.From), " ", "-");
    events.push_back(
        {moment + "-" + core::ReplaceAll(core::LowerCase(summary), " ", "-") + "@orvexplus",
         now.From, false, summary,
         zodiac.PositionText(now.Longitude) + (now.Retrograde ? " R" : "") + "\n" +
             LordsText(now.Held)});
  }
  return events;
}

}  // namespace orvex::transit
