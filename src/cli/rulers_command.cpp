#include "cli/city_place.h"
#include "cli/context.h"
#include "cli/output.h"
#include "judgement/rulers.h"

namespace orvex::cli {

namespace {

struct RulersOptions {
  std::string At;
  std::string City;
};

void RunRulers(Context& context, const RulersOptions& options) {
  core::Session& session = context.Reading();
  const CityPlace city = CityPlaceOf(session, options.City);
  const core::DateTime local =
      options.At.empty() ? NowAt(session, city) : MomentOption("--at", options.At);
  const core::Table rulers = judgement::RulersAt(session, {local, city.Where, city.Hours});
  if (context.Json) {
    PrintJson({{"tables", {{"Rulers", TableJson(rulers)}}}});
  } else {
    PrintTable(rulers);
  }
}

}  // namespace

void AddRulersCommand(Command app, Context& context) {
  auto options = std::make_shared<RulersOptions>();
  Command command = AddCommand(app, "rulers", "the ruling planets of a moment",
                               [&context, options] { RunRulers(context, *options); });
  command.add_option("--at", options->At, "local moment of the city; else now");
  command.add_option("--city", options->City, "id of the city; else the user city");
}

}  // namespace orvex::cli
