// The bench of the birth time: the spans of the Ascendant's sub around a stored birth, each with
// how far the ruling planets and the events of the life speak for it.
#pragma once

#include <optional>
#include <string>
#include <vector>

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

// The planets of the first five rows and of the nodes of a table of rulers, each once, in its
// order.
std::vector<std::string> StrongRulers(const core::Table& rulers);

// A row for each span, the first beginning and the last ending so many minutes from the birth; From
// and Until by the birth's clock in the stored form, Position at From. Rulers: how many of the
// three lords are among StrongRulers; those lords are bold. Events: "2 of 3", those that the
// horoscope of the span's middle second explains, which the tool tip names. Now: "Now" in the row
// of the stored birth time. The tag of a row is its middle second by the birth's clock. For a chart
// that CheckBench takes.
core::Table BuildBirthTimes(core::Session& session, const chart::HoroscopeModel& model, int minutes,
                            const core::Table& rulers, const std::vector<LifeEvent>& events);

// A span of the bench taken for the birth time.
struct TakenTime {
  core::DateTime Birth{};  // its middle second, by the birth's clock
  std::string Comment;     // a line for the client's comments: from which time, and by which lords
};

// Of a row of BuildBirthTimes. std::out_of_range beyond the table.
TakenTime TakeTime(const chart::HoroscopeModel& model, const core::Table& times, std::size_t row);

}  // namespace orvex::judgement
