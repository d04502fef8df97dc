#include <iostream>

#include "cli/context.h"
#include "cli/search_commands.h"
#include "core/own_files.h"
#include "practice/birthdays.h"
#include "practice/client_list.h"
#include "practice/export_list.h"

namespace orvex::cli {

namespace {

struct ExportOptions {
  std::string File;
  std::optional<std::string> Group;
  SearchOptions Search;
};

void Export(const core::Session& session, const core::Table& table, const ExportOptions& options,
            const char* title) {
  core::CheckFileToWrite(session, options.File);
  if (const auto refused = practice::ExportList(table, options.File, title)) {
    throw CommandFailed(refused->Text);
  }
  std::cout << options.File << "\n";
}

void ExportClients(Context& context, const ExportOptions& options) {
  std::optional<std::int32_t> group;
  if (options.Group) {
    group = WholeOption("--group", *options.Group);
  }
  Export(context.Reading(), practice::LoadClientsOfGroup(context.Reading(), group), options,
         "Clients");
}

void ExportSearch(Context& context, const ExportOptions& options) {
  Export(context.Reading(), RunSearch(context.Reading(), options.Search).Results, options,
         "Search Results");
}

void ExportBirthdays(Context& context, const ExportOptions& options) {
  Export(context.Reading(), practice::GetBirthdaysToday(context.Reading()), options, "Birthdays");
}

}  // namespace

void AddExportCommands(Command app, Context& context) {
  Command exported = app.add_subcommand("export", "a list as a spreadsheet");
  exported.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run) {
    auto options = std::make_shared<ExportOptions>();
    Command command = AddCommand(exported, name, description,
                                 [&context, options, run] { run(context, *options); });
    command.add_option("--file", options->File, "the .xlsx file to write").required();
    return std::pair(command, options);
  };
  const auto [clients, clientOptions] = add("clients", "the clients of a group", ExportClients);
  clients.add_option("--group", clientOptions->Group, "id of the group; else all groups");
  const auto [search, searchOptions] = add("search", "what a search finds", ExportSearch);
  AddSearchOptions(search, searchOptions->Search);
  add("birthdays", "the birthdays of today", ExportBirthdays);
}

}  // namespace orvex::cli
