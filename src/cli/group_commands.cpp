#include <iostream>

#include "cli/context.h"
#include "cli/output.h"
#include "practice/groups.h"

namespace orvex::cli {

namespace {

struct GroupOptions {
  std::string Id;
  std::string Name;
  bool Yes = false;
};

void RunListGroup(Context& context, const GroupOptions& /*options*/) {
  PrintList(practice::LoadGroups(context.Reading()), context.Json);
}

void RunAddGroup(Context& context, const GroupOptions& options) {
  PrintId(Context::Saved(practice::AddGroup(context.Writing(), options.Name)), context.Json);
}

void RunRename(Context& context, const GroupOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  PrintId(Context::Saved(practice::RenameGroup(context.Writing(), id, options.Name)), context.Json);
}

void RunDeleteGroup(Context& context, const GroupOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  if (!options.Yes) {
    throw CommandFailed(practice::kDeleteGroupQuestion);
  }
  PrintId(Context::Saved(practice::DeleteGroup(context.Writing(), id)), context.Json);
}

}  // namespace

void AddGroupCommands(Command app, Context& context) {
  Command group = app.add_subcommand("group", "groups of clients");
  group.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run) {
    auto options = std::make_shared<GroupOptions>();
    Command command =
        AddCommand(group, name, description, [&context, options, run] { run(context, *options); });
    return std::pair(command, options);
  };
  add("list", "list the groups", RunListGroup);

  const auto [addCommand, addOptions] = add("add", "add a group", RunAddGroup);
  addCommand.add_option("NAME", addOptions->Name, "its name").required();

  const auto [renameCommand, renameOptions] = add("rename", "give a group a new name", RunRename);
  renameCommand.add_option("ID", renameOptions->Id, "id of the group").required();
  renameCommand.add_option("NAME", renameOptions->Name, "its new name").required();

  const auto [deleteCommand, deleteOptions] =
      add("delete", "delete a group with all its clients", RunDeleteGroup);
  deleteCommand.add_option("ID", deleteOptions->Id, "id of the group").required();
  deleteCommand.add_flag("--yes", deleteOptions->Yes, "do not ask");
}

}  // namespace orvex::cli
