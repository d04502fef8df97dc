#include <iostream>

#include "cli/context.h"
#include "cli/search_commands.h"
#include "core/own_files.h"
#include "exchange/aaf_writing.h"
#include "exchange/exchange_files.h"
#include "practice/birthdays.h"
#include "practice/client_list.h"
#include "practice/export_list.h"

namespace orvex::cli {

namespace {

struct ExportOptions {
  std::string Id;
  std::string File;
  std::optional<std::string> Group;
  SearchOptions Search;
};

void WriteAaf(const core::Session& session, const std::vector<std::int32_t>& clientIds,
              const ExportOptions& options) {
  const auto silent = [](std::size_t /*done*/, std::size_t /*all*/) { return true; };
  if (const auto refused = exchange::ExportAaf(session, clientIds, options.File, silent)) {
    throw CommandFailed(refused->Text);
  }
  std::cout << options.File << "\n";
}

// A list as a spreadsheet, or its clients as AAF where the file's name says so.
void Export(Context& context, const core::Table& table, const ExportOptions& options,
            const char* title) {
  core::CheckFileToWrite(context.Reading(), options.File);
  if (exchange::IsAafName(options.File)) {
    WriteAaf(context.Reading(), exchange::ClientIdsOf(table), options);
    return;
  }
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
  Export(context, practice::LoadClientsOfGroup(context.Reading(), group), options, "Clients");
}

void ExportSearch(Context& context, const ExportOptions& options) {
  Export(context, RunSearch(context.Reading(), options.Search).Results, options, "Search Results");
}

void ExportBirthdays(Context& context, const ExportOptions& options) {
  if (exchange::IsAafName(options.File)) {
    throw CommandFailed("The birthdays go out as a spreadsheet (.xlsx) alone.");
  }
  Export(context, practice::GetBirthdaysToday(context.Reading()), options, "Birthdays");
}

void ExportClient(Context& context, const ExportOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  const core::Session& session = context.Reading();
  if (practice::PlaceOfClient(session, id).GroupId == 0) {
    throw CommandFailed(core::kNoClientWithId);
  }
  if (!exchange::IsAafName(options.File)) {
    throw CommandFailed("A client goes out as AAF: the file must end with .aaf.");
  }
  core::CheckFileToWrite(session, options.File);
  WriteAaf(session, {id}, options);
}

}  // namespace

void AddExportCommands(Command app, Context& context) {
  Command exported = app.add_subcommand("export", "clients as AAF, a list as a spreadsheet");
  exported.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run) {
    auto options = std::make_shared<ExportOptions>();
    Command command = AddCommand(exported, name, description,
                                 [&context, options, run] { run(context, *options); });
    command.add_option("--file", options->File, "the .xlsx file to write; of clients also .aaf")
        .required();
    return std::pair(command, options);
  };
  const auto [clients, clientOptions] = add("clients", "the clients of a group", ExportClients);
  clients.add_option("--group", clientOptions->Group, "id of the group; else all groups");
  const auto [search, searchOptions] = add("search", "what a search finds", ExportSearch);
  AddSearchOptions(search, searchOptions->Search);
  const auto [client, oneOptions] = add("client", "a client as AAF", ExportClient);
  client.add_option("ID", oneOptions->Id, "id of the client").required();
  add("birthdays", "the birthdays of today", ExportBirthdays);
}

}  // namespace orvex::cli
