#include "cli/context.h"
#include "cli/output.h"
#include "judgement/matters.h"

namespace orvex::cli {

namespace {

struct MattersOptions {
  std::string Id;
  std::optional<std::string> Name;
  std::optional<std::string> Main;
  std::optional<std::string> Supporting;
  std::optional<std::string> Denying;
  std::optional<std::string> Source;
  bool Yes = false;
};

void ApplyMatter(const MattersOptions& options, judgement::MatterForm& form) {
  form.Name = options.Name.value_or(form.Name);
  form.MainCusp = options.Main.value_or(form.MainCusp);
  form.Supporting = options.Supporting.value_or(form.Supporting);
  form.Denying = options.Denying.value_or(form.Denying);
  form.Source = options.Source.value_or(form.Source);
}

void RunListMatter(Context& context) {
  PrintList(judgement::LoadMatters(context.Reading()), context.Json);
}

void RunAddMatter(Context& context, const MattersOptions& options) {
  judgement::MatterForm form;
  ApplyMatter(options, form);
  PrintId(Context::Saved(judgement::SaveNewMatter(context.Writing(), form)), context.Json);
}

void RunEditMatter(Context& context, const MattersOptions& options) {
  core::Session& session = context.Writing();
  const std::int32_t id = WholeOption("ID", options.Id);
  std::optional<judgement::MatterForm> form = judgement::OpenEditMatter(session, id);
  if (!form) {
    throw CommandFailed("");
  }
  ApplyMatter(options, *form);
  PrintId(Context::Saved(judgement::SaveMatterChanges(session, *form, id)), context.Json);
}

void RunDeleteMatter(Context& context, const MattersOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  if (!options.Yes) {
    throw CommandFailed(judgement::kDeleteMatterQuestion);
  }
  PrintId(Context::Saved(judgement::DeleteMatter(context.Writing(), id)), context.Json);
}

void AddMatterFieldOptions(Command command, MattersOptions& options) {
  command.add_option("--name", options.Name, "at most 50 characters");
  command.add_option("--main", options.Main, "the main cusp, 1 to 12");
  command.add_option("--supporting", options.Supporting, "houses with blanks between them");
  command.add_option("--denying", options.Denying, "houses with blanks between them");
  command.add_option("--source", options.Source, "teacher or school");
}

}  // namespace

void AddMattersCommands(Command app, Context& context) {
  // The bare word lists too; its callback also runs behind that of a word below it.
  auto named = std::make_shared<bool>(false);
  Command matters = AddCommand(app, "matters", "house groups of the questions", [&context, named] {
    if (!*named) {
      RunListMatter(context);
    }
  });
  const auto add = [&](const char* name, const char* description, auto run) {
    auto options = std::make_shared<MattersOptions>();
    Command command = AddCommand(matters, name, description, [&context, options, named, run] {
      *named = true;
      run(context, *options);
    });
    return std::pair(command, options);
  };
  add("list", "list the matters",
      [](Context& list, const MattersOptions& /*options*/) { RunListMatter(list); });

  const auto [addCommand, addOptions] = add("add", "add a matter", RunAddMatter);
  AddMatterFieldOptions(addCommand, *addOptions);
  for (const char* needed : {"--name", "--main", "--supporting", "--denying"}) {
    addCommand.get_option(needed).required();
  }
  const auto [editCommand, editOptions] =
      add("edit", "change a matter; the rest stays", RunEditMatter);
  editCommand.add_option("ID", editOptions->Id, "id of the matter").required();
  AddMatterFieldOptions(editCommand, *editOptions);

  const auto [deleteCommand, deleteOptions] = add("delete", "delete a matter", RunDeleteMatter);
  deleteCommand.add_option("ID", deleteOptions->Id, "id of the matter").required();
  deleteCommand.add_flag("--yes", deleteOptions->Yes, "do not ask");
}

}  // namespace orvex::cli
