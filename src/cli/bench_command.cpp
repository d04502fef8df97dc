#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/judgement_words.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "judgement/birth_times.h"
#include "judgement/rulers.h"

namespace orvex::cli {

namespace {

struct BenchOptions {
  std::string Id;
  std::string Window = core::WholeText(judgement::kBenchMinutes);
  std::string At;
};

void RunBench(Context& context, const BenchOptions& options) {
  core::Session& session = context.Reading();
  const std::int32_t minutes = WholeOption("--window", options.Window);
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  if (const std::optional<core::Refusal> refused = judgement::CheckBench(opened.Model, minutes)) {
    throw CommandFailed(refused->Text);
  }
  const core::Table times =
      judgement::BuildBirthTimes(session, opened.Model, minutes,
                                 judgement::RulersAt(session, JudgementAt(session, options.At)),
                                 judgement::EventsOfClient(session, opened.Model.ClientId));
  if (context.Json) {
    PrintJson({{"tables", {{"BirthTimes", TableJson(times)}}}});
  } else {
    PrintTable(times);
  }
}

}  // namespace

void AddBenchCommand(Command app, Context& context) {
  auto options = std::make_shared<BenchOptions>();
  Command command = AddCommand(app, "bench", "candidates for a client's birth time",
                               [&context, options] { RunBench(context, *options); });
  command.add_option("ID", options->Id, "id of the client").required();
  command.add_option("--window", options->Window, "minutes on both sides, 1 to 120; else 10");
  command.add_option("--at", options->At, "moment of judgement at the user city; else now");
}

}  // namespace orvex::cli
