#include <array>
#include <iostream>

#include "cli/chart_style.h"
#include "cli/city_place.h"
#include "cli/context.h"
#include "cli/judgement_words.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "judgement/judge_matter.h"
#include "judgement/judgement_calendar.h"

namespace orvex::cli {

namespace {

using judgement::Judgement;

struct MatterOptions {
  std::string Id;
  std::string Matter;
  std::string Rotate;
  std::string At;
  std::string From;
  std::string To;
  std::string IcsFile;
};

struct NamedTable {
  const char* Name;
  core::Table Judgement::*Table;
};

constexpr std::array<NamedTable, 6> kTables = {{{"MatterChain", &Judgement::MatterChain},
                                                {"MatterCusps", &Judgement::MatterCusps},
                                                {"HouseGrades", &Judgement::HouseGrades},
                                                {"MatterPlanets", &Judgement::MatterPlanets},
                                                {"MatterPeriods", &Judgement::MatterPeriods},
                                                {"Rulers", &Judgement::Rulers}}};

judgement::PeriodWindow WindowOf(const core::Session& session, const MatterOptions& options) {
  judgement::PeriodWindow window;
  window.From = options.From.empty() ? session.Time.Now() : MomentOption("--from", options.From);
  window.To = options.To.empty() ? core::DateAdd(core::DateInterval::Years,
                                                 judgement::kYearsOfPeriods, window.From)
                                 : MomentOption("--to", options.To);
  if (window.To <= window.From) {
    throw CommandFailed("--to takes a date after --from.");
  }
  return window;
}

void PrintJudgement(const judgement::Matter& matter, const Judgement& judged, bool json) {
  const std::string houses = judgement::HousesText(matter);
  if (!json) {
    std::cout << "Matter: " << matter.Name << "\nHouses: " << houses << "\n";
    for (const NamedTable& table : kTables) {
      std::cout << "\n" << table.Name << "\n";
      PrintTable(judged.*table.Table);
    }
    return;
  }
  Json tables = Json::object();
  for (const NamedTable& table : kTables) {
    tables[table.Name] = TableJson(judged.*table.Table);
  }
  PrintJson(
      {{"captions", {{"Matter", matter.Name}, {"Houses", houses}}}, {"tables", std::move(tables)}});
}

void RunMatter(Context& context, const MatterOptions& options) {
  core::Session& session = context.Reading();
  const judgement::Matter matter = MatterFor(session, options.Matter);
  const judgement::PeriodWindow window = WindowOf(session, options);
  horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  RotateTo(session, opened, options.Rotate);
  const Judgement judged = judgement::JudgeMatter(session, opened.Model, matter,
                                                  JudgementAt(session, options.At), window);
  WriteCalendar(session, options.IcsFile,
                judgement::PeriodEvents(
                    judged.MatterPeriods, opened.Model.Name + ": " + matter.Name,
                    core::WholeText(opened.Model.ClientId) + "-" + core::WholeText(matter.Id)));
  PrintJudgement(matter, judged, context.Json);
}

}  // namespace

void AddMatterCommand(Command app, Context& context) {
  auto options = std::make_shared<MatterOptions>();
  Command command = AddCommand(app, "matter", "a matter judged in a client's horoscope",
                               [&context, options] { RunMatter(context, *options); });
  command.add_option("ID", options->Id, "id of the client").required();
  command.add_option("MATTER", options->Matter, "name or id of the matter").required();
  command.add_option("--rotate", options->Rotate, "house that counts as the first, 1 to 12");
  command.add_option("--at", options->At, "moment of judgement at the user city; else now");
  command.add_option("--from", options->From, "periods that end after it; else now");
  command.add_option("--to", options->To, "periods that begin before it; else ten years on");
  command.add_option("--ics", options->IcsFile, "writes the periods as calendar");
}

}  // namespace orvex::cli
