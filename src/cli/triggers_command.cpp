#include <algorithm>

#include "cli/chart_style.h"
#include "cli/city_place.h"
#include "cli/context.h"
#include "cli/judgement_words.h"
#include "cli/output.h"
#include "core/text.h"
#include "judgement/judge_matter.h"
#include "judgement/judgement_calendar.h"
#include "judgement/matter_planets.h"
#include "judgement/triggers.h"

namespace orvex::cli {

namespace {

struct TriggersOptions {
  std::string Client;
  std::string Matter;
  std::string At;
  std::string Lords;
  std::string Bodies;
  std::string From;
  std::string To;
  std::string City;
  std::string IcsFile;
};

std::vector<std::string> Pieces(const std::string& list) {
  std::vector<std::string> pieces;
  for (const std::string& piece : core::Split(list, ',')) {
    pieces.push_back(core::Trim(piece));
  }
  return pieces;
}

std::vector<exact::Point> BodiesOf(const std::string& list) {
  std::vector<exact::Point> bodies;
  for (const std::string& name : Pieces(list)) {
    const std::optional<exact::Point> body = exact::PointOfName(name);
    const auto& known = judgement::kTriggerBodies;
    if (!body || std::find(known.begin(), known.end(), *body) == known.end()) {
      throw CommandFailed(
          "--bodies takes Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn and Ascendant, with "
          "commas between them.");
    }
    if (std::find(bodies.begin(), bodies.end(), *body) == bodies.end()) {
      bodies.push_back(*body);
    }
  }
  return bodies;
}

std::set<std::string> LordsOf(const std::string& list) {
  std::set<std::string> lords;
  for (const std::string& name : Pieces(list)) {
    const std::optional<exact::Point> planet = exact::PointOfName(name);
    if (!planet || *planet == exact::Point::Ascendant) {
      throw CommandFailed("--lords takes names of planets with commas between them.");
    }
    lords.insert(exact::PointName(*planet));
  }
  return lords;
}

// The fruitful planets of the client's matter, and the client's cusps.
void TakeFromClient(Context& context, const TriggersOptions& options,
                    judgement::TriggerSearch& search) {
  core::Session& session = context.Reading();
  const judgement::Matter matter = MatterFor(session, options.Matter);
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Client);
  const judgement::Judgement judged =
      judgement::JudgeMatter(session, opened.Model, matter, JudgementAt(session, options.At), {});
  search.Lords = judgement::FruitfulPlanets(judged.MatterPlanets);
  search.Natal = judgement::NatalCusps(opened.Birth);
}

judgement::TriggerSearch TriggerSearchOf(Context& context, const TriggersOptions& options) {
  core::Session& session = context.Reading();
  const CityPlace city = CityPlaceOf(session, options.City);
  const core::DateTime from =
      options.From.empty() ? NowAt(session, city) : MomentOption("--from", options.From);
  const core::DateTime to = options.To.empty() ? core::DateAdd(core::DateInterval::Months, 1, from)
                                               : MomentOption("--to", options.To);
  if (to <= from) {
    throw CommandFailed("--to takes a moment after --from.");
  }
  judgement::TriggerSearch search;
  search.Bodies = BodiesOf(options.Bodies);
  search.From = from - city.Clock;
  search.To = to - city.Clock;
  search.Where = city.Where;
  search.Offset = city.Clock;
  if (options.Client.empty()) {
    search.Lords = LordsOf(options.Lords);
  } else {
    TakeFromClient(context, options, search);
  }
  return search;
}

void RunTriggers(Context& context, const TriggersOptions& options) {
  core::Session& session = context.Reading();
  const judgement::TriggerSearch search = TriggerSearchOf(context, options);
  const core::Table triggers = judgement::BuildTriggers(session, search);
  WriteCalendar(session, options.IcsFile, judgement::TriggerEvents(triggers, search.Offset));
  if (context.Json) {
    PrintJson({{"tables", {{"Triggers", TableJson(triggers)}}}});
  } else {
    PrintTable(triggers);
  }
}

}  // namespace

void AddTriggersCommand(Command app, Context& context) {
  auto options = std::make_shared<TriggersOptions>();
  Command command = AddCommand(app, "triggers", "when bodies pass through spans of chosen lords",
                               [&context, options] { RunTriggers(context, *options); });
  Command lords = command.add_option_group("lords");
  const Option client = lords.add_option("--client", options->Client, "id of the client");
  const Option named = lords.add_option("--lords", options->Lords, "planets, commas between them");
  lords.require_option(1);
  const Option matter =
      command.add_option("--matter", options->Matter, "name or id of the client's matter");
  matter.needs(client);
  client.needs(matter);
  command.add_option("--at", options->At, "moment of judgement at the user city; else now")
      .excludes(named);
  command.add_option("--bodies", options->Bodies, "Sun to Saturn, Ascendant; commas between them")
      .required();
  command.add_option("--from", options->From, "local moment of the city; else now");
  command.add_option("--to", options->To, "local moment of the city; else a month later");
  command.add_option("--city", options->City, "id of the city; else the user city");
  command.add_option("--ics", options->IcsFile, "writes the triggers as calendar");
}

}  // namespace orvex::cli
