#include "judgement/explained_events.h"

#include <algorithm>
#include <set>

#include "chart/dasha_tree.h"
#include "judgement/house_grades.h"

namespace orvex::judgement {

namespace {

// The names of the planets that signify a main or supporting house of a matter.
std::set<std::string> GiversOf(const chart::HoroscopeModel& model, const Matter& matter) {
  std::set<std::string> givers;
  for (const int house : GivingHouses(matter)) {
    for (const std::vector<std::size_t>& grade : GradesOf(model, house)) {
      for (const std::size_t row : grade) {
        givers.insert(PlanetText(model, row, chart::PlanetColumn::Planet));
      }
    }
  }
  return givers;
}

}  // namespace

bool IsExplained(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                 const LifeEvent& event) {
  if (!event.What) {
    return false;
  }
  const auto lords = chart::LordsRunningOn(reference, model, event.Date);
  const std::set<std::string> givers = GiversOf(model, *event.What);
  return lords && std::all_of(lords->begin(), lords->end(),
                              [&givers](const std::string& lord) { return givers.contains(lord); });
}

}  // namespace orvex::judgement
