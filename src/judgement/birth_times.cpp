#include "judgement/birth_times.h"

#include <algorithm>
#include <set>

#include "core/attempt.h"
#include "core/exact_numbers.h"
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

// The planets of the first five rulers and of the nodes.
std::set<std::string> StrongRulers(const core::Table& rulers) {
  std::set<std::string> planets;
  for (std::size_t row = 0; row < rulers.Rows.size(); ++row) {
    if (row < kStrongestRulers || rulers.At(row, RulerColumn::Role).Text == "Node") {
      planets.insert(rulers.At(row, RulerColumn::Planet).Text);
    }
  }
  return planets;
}

std::string CountOfRulers(const exact::Lords& lords, const std::set<std::string>& rulers) {
  int count = 0;
  for (const std::string* lord : {&lords.Sign, &lords.Star, &lords.Sub}) {
    count += rulers.contains(*lord) ? 1 : 0;
  }
  return core::WholeText(count);
}

// "2 of 3" by the horoscope of a birth. A birth whose chart cannot be computed explains none.
std::string EventsText(core::Session& session, const chart::ChartInput& input,
                       const std::vector<LifeEvent>& events) {
  int explained = 0;
  if (!events.empty()) {
    core::Attempt([&] {
      explained =
          CountExplained(session.Reference, horoscope::UnsavedHoroscope(session, input), events);
    });
  }
  return core::WholeText(explained) + " of " +
         core::WholeText(static_cast<std::int64_t>(events.size()));
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
  const std::set<std::string> strong = StrongRulers(rulers);
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
    table.At(row, BirthTimeColumn::SignLord).Text = span.Held.Sign;
    table.At(row, BirthTimeColumn::StarLord).Text = span.Held.Star;
    table.At(row, BirthTimeColumn::SubLord).Text = span.Held.Sub;
    table.At(row, BirthTimeColumn::Rulers).Text = CountOfRulers(span.Held, strong);
    table.At(row, BirthTimeColumn::Events).Text = EventsText(session, input, events);
    table.At(row, BirthTimeColumn::Now).Text =
        span.From <= birth && birth < span.Until ? "Now" : "";
  }
  return table;
}

}  // namespace orvex::judgement
