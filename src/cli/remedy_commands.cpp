#include <algorithm>

#include "cli/context.h"
#include "cli/output.h"
#include "core/text.h"
#include "practice/remedies.h"

namespace orvex::cli {

namespace {

struct RemedyOptions {
  std::string Id;
  std::optional<std::string> Problem;
  std::optional<std::string> Remedy;
  std::optional<std::string> Planet;
  std::optional<std::string> Date;
  bool Yes = false;
};

// The id of a planet named in any case; 0 for "none".
std::int32_t PlanetOption(const core::Session& session, const std::string& name) {
  const std::string wanted = core::LowerCase(name);
  if (wanted == "none") {
    return 0;
  }
  for (const core::PlanetInfo& planet : session.Reference.Planets) {
    if (core::LowerCase(planet.PlanetName) == wanted) {
      return planet.Id;
    }
  }
  throw CommandFailed("--planet: there is no planet of that name");
}

void ApplyRemedy(const core::Session& session, const RemedyOptions& options,
                 practice::RemedyForm& form) {
  form.Problem = options.Problem.value_or(form.Problem);
  form.Remedy = options.Remedy.value_or(form.Remedy);
  if (options.Planet) {
    form.PlanetId = PlanetOption(session, *options.Planet);
  }
  if (options.Date) {
    form.Date = MomentOption("--date", *options.Date);
  }
}

void RunListRemedy(Context& context, const RemedyOptions& options) {
  PrintList(practice::LoadRemedies(context.Reading(), WholeOption("CLIENT", options.Id)),
            context.Json);
}

void RunAddRemedy(Context& context, const RemedyOptions& options) {
  core::Session& session = context.Writing();
  practice::RemedyForm form = practice::OpenAddRemedy(session);
  ApplyRemedy(session, options, form);
  PrintId(Context::Saved(practice::SaveNewRemedy(session, form, WholeOption("CLIENT", options.Id))),
          context.Json);
}

void RunEditRemedy(Context& context, const RemedyOptions& options) {
  core::Session& session = context.Writing();
  const std::int32_t id = WholeOption("ID", options.Id);
  std::optional<practice::RemedyForm> form = practice::OpenEditRemedy(session, id);
  if (!form) {
    throw CommandFailed("");
  }
  ApplyRemedy(session, options, *form);
  PrintId(Context::Saved(practice::SaveRemedyChanges(session, *form, id)), context.Json);
}

void RunDeleteRemedy(Context& context, const RemedyOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  if (!options.Yes) {
    throw CommandFailed(practice::kDeleteRemedyQuestion);
  }
  PrintId(Context::Saved(practice::DeleteRemedy(context.Writing(), id)), context.Json);
}

void AddRemedyFieldOptions(Command command, RemedyOptions& options) {
  command.add_option("--problem", options.Problem, "problem or symptom");
  command.add_option("--remedy", options.Remedy, "remedy or solution");
  command.add_option("--planet", options.Planet, "planet that it is for; else none");
  command.add_option("--date", options.Date, "YYYY-MM-DD; else today");
}

}  // namespace

void AddRemedyCommands(Command app, Context& context) {
  Command remedy = app.add_subcommand("remedy", "remedies given to clients");
  remedy.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run, const char* id) {
    auto options = std::make_shared<RemedyOptions>();
    Command command =
        AddCommand(remedy, name, description, [&context, options, run] { run(context, *options); });
    command.add_option(id, options->Id, "id").required();
    return std::pair(command, options);
  };
  add("list", "list the remedies of a client", RunListRemedy, "CLIENT");

  const auto [addCommand, addOptions] = add("add", "note a remedy", RunAddRemedy, "CLIENT");
  AddRemedyFieldOptions(addCommand, *addOptions);
  addCommand.get_option("--problem").required();
  addCommand.get_option("--remedy").required();

  const auto [editCommand, editOptions] =
      add("edit", "change a remedy; the rest stays", RunEditRemedy, "ID");
  AddRemedyFieldOptions(editCommand, *editOptions);

  const auto [deleteCommand, deleteOptions] =
      add("delete", "delete a remedy", RunDeleteRemedy, "ID");
  deleteCommand.add_flag("--yes", deleteOptions->Yes, "do not ask");
}

}  // namespace orvex::cli
