// The bench of the birth time: the spans of the Ascendant's sub around a stored birth, each with
// how far the ruling planets and the events of the life speak for it.
#pragma once

#include <optional>

#include "chart/horoscope_model.h"
#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"
#include "judgement/life_events.h"

namespace orvex::judgement {

inline constexpr int kBenchMinutes = 10;
inline constexpr int kLongestBenchMinutes = 120;

// The refusal of a chart whose Ascendant does not come from its birth time (a query's number, a
// degree set by hand) and of minutes beyond 1 to the longest.
std::optional<core::Refusal> CheckBench(const chart::HoroscopeModel& model, int minutes);

enum class BirthTimeColumn {
  From,
  Until,
  Position,
  SignLord,
  StarLord,
  SubLord,
  Rulers,
  Events,
  Now
};

// A row for each span, the first beginning and the last ending so many minutes from the birth; From
// and Until by the birth's clock in the stored form, Position at From. Rulers: how many of the
// three lords are among the first five rows and the nodes of `rulers`. Events: "2 of 3", those that
// the horoscope of the span's middle second explains. Now: "Now" in the row of the stored birth
// time. The tag of a row is its middle second by the birth's clock. For a chart that CheckBench
// takes.
core::Table BuildBirthTimes(core::Session& session, const chart::HoroscopeModel& model, int minutes,
                            const core::Table& rulers, const std::vector<LifeEvent>& events);

}  // namespace orvex::judgement
