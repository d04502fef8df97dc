#include "judgement/birth_times.h"

#include <algorithm>
#include <utility>

#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "exact/crossings.h"
#include "exact/crossings_table.h"
#include "horoscope/exact_reading.h"
#include "horoscope/recalculation.h"
#include "horoscope/unsaved_horoscope.h"
#include "judgement/explained_events.h"
#include "judgement/rulers.h"

namespace orvex::judgement {

namespace {

core::Table EmptyBench() {
  return {{{"From", 150},
           {"Until", 150},
           {"Position", 110},
           {"Sign Lord", 80},
           {"Star Lord", 80},
           {"Sub Lord", 80},
           {"Rulers", 60},
           {"Events", 70},
           {"Now", 50}},
          {}};
}

// The three lords of a span, those that rule bold, and how many they are.
void FillLords(const exact::Lords& lords, const std::vector<std::string>& rulers,
               core::Table& table, std::size_t row) {
  const std::pair<BirthTimeColumn, const std::string&> columns[] = {
      {BirthTimeColumn::SignLord, lords.Sign},
      {BirthTimeColumn::StarLord, lords.Star},
      {BirthTimeColumn::SubLord, lords.Sub}};
  int count = 0;
  for (const auto& [column, lord] : columns) {
    core::Cell& cell = table.At(row, column);
    cell.Text = lord;
    cell.Bold = std::find(rulers.begin(), rulers.end(), lord) != rulers.end();
    count += cell.Bold ? 1 : 0;
  }
  table.At(row, BirthTimeColumn::Rulers).Text = core::WholeText(count);
}

// The events that a horoscope explains: "Marriage, 11 Feb 2003".
std::vector<std::string> ExplainedEvents(const core::Session& session,
                                         const chart::HoroscopeModel& model,
                                         const std::vector<LifeEvent>& events) {
  std::vector<std::string> explained;
  for (const LifeEvent& event : events) {
    if (IsExplained(session.Reference, model, event)) {
      explained.push_back(event.What->Name + ", " + core::LongDateText(event.Date, true));
    }
  }
  return explained;
}

// "2 of 3" by the horoscope of a birth. A birth whose chart cannot be computed explains none.
void FillEvents(core::Session& session, const chart::ChartInput& input,
                const std::vector<LifeEvent>& events, core::Cell& cell) {
  std::vector<std::string> explained;
  if (!events.empty()) {
    core::Attempt([&] {
      explained = ExplainedEvents(session, horoscope::UnsavedHoroscope(session, input), events);
    });
  }
  const auto count = [](const auto& list) {
    return core::WholeText(static_cast<std::int64_t>(list.size()));
  };
  cell.Text = count(explained) + " of " + count(events);
  cell.Tooltip = core::Join(explained, "\n");
}

exact::CrossingSearch SearchAround(const chart::HoroscopeModel& model, int minutes) {
  const core::DateTime birth = horoscope::ExactMomentUt(model);
  return {exact::Point::Ascendant,
          birth - std::chrono::minutes(minutes),
          birth + std::chrono::minutes(minutes),
          exact::Depth::Sub,
          {core::ToDouble(model.Latitude), core::ToDouble(model.Longitude)}};
}

bool HasOwnAscendant(const chart::HoroscopeModel& model) {
  return std::any_of(model.Client.begin(), model.Client.end(), [](const auto& column) {
    return column.first == "ascdegreetype" && column.second == "M";
  });
}

}  // namespace

std::vector<std::string> StrongRulers(const core::Table& rulers) {
  std::vector<std::string> planets;
  for (std::size_t row = 0; row < rulers.Rows.size(); ++row) {
    const std::string& planet = rulers.At(row, RulerColumn::Planet).Text;
    const bool strong = row < kStrongestRulers || rulers.At(row, RulerColumn::Role).Text == "Node";
    if (strong && std::find(planets.begin(), planets.end(), planet) == planets.end()) {
      planets.push_back(planet);
    }
  }
  return planets;
}

std::optional<core::Refusal> CheckBench(const chart::HoroscopeModel& model, int minutes) {
  if (model.Horary || HasOwnAscendant(model)) {
    return core::Refusal{
        "The Ascendant of this chart is given; there is no birth time to be found from it.",
        core::MessageIcon::Information, ""};
  }
  if (minutes < 1 || minutes > kLongestBenchMinutes) {
    return core::Refusal{
        "The window takes minutes from 1 to " + core::WholeText(kLongestBenchMinutes) + ".",
        core::MessageIcon::Information, "window"};
  }
  return std::nullopt;
}

core::Table BuildBirthTimes(core::Session& session, const chart::HoroscopeModel& model, int minutes,
                            const core::Table& rulers, const std::vector<LifeEvent>& events) {
  const exact::ExactZodiac zodiac(session.Reference);
  const exact::CrossingSearch search = SearchAround(model, minutes);
  const core::DateTime birth = horoscope::ExactMomentUt(model);
  const std::chrono::seconds clock = model.Birth - birth;
  const std::vector<std::string> strong = StrongRulers(rulers);
  std::vector<exact::Crossing> spans;
  {
    const exact::ExactSky sky(session.Ephemeris, exact::ReadingOf(session),
                              session.State.RahuKetuCalculation);
    spans = exact::Crossings(sky, zodiac, search);
  }
  chart::ChartInput input =
      horoscope::ChartInputOf(session, model, horoscope::OpenRecalculation(model));
  core::Table table = EmptyBench();
  for (const exact::Crossing& span : spans) {
    input.Birth = span.From + (span.Until - span.From) / 2 + clock;
    table.AddRow().Tag = core::StoredDateTimeText(input.Birth);
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, BirthTimeColumn::From).Text = core::StoredDateTimeText(span.From + clock);
    table.At(row, BirthTimeColumn::Until).Text = core::StoredDateTimeText(span.Until + clock);
    table.At(row, BirthTimeColumn::Position).Text = zodiac.PositionText(span.Longitude);
    FillLords(span.Held, strong, table, row);
    FillEvents(session, input, events, table.At(row, BirthTimeColumn::Events));
    table.At(row, BirthTimeColumn::Now).Text =
        span.From <= birth && birth < span.Until ? "Now" : "";
  }
  return table;
}

TakenTime TakeTime(const chart::HoroscopeModel& model, const core::Table& times, std::size_t row) {
  const auto text = [&times, row](BirthTimeColumn column) { return times.At(row, column).Text; };
  const std::string& middle = times.Rows.at(row).Tag;
  return {core::ParseDateTime(middle).value(),
          "Birth time " + middle + " taken in the place of " +
              core::StoredDateTimeText(model.Birth) + ": Ascendant in the sign of " +
              text(BirthTimeColumn::SignLord) + ", the star of " + text(BirthTimeColumn::StarLord) +
              ", the sub of " + text(BirthTimeColumn::SubLord) + "; events " +
              text(BirthTimeColumn::Events) + "."};
}

}  // namespace orvex::judgement
