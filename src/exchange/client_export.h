// Clients on their way out, as files of one of three kinds.
#pragma once

#include <filesystem>
#include <string>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"
#include "exchange/exchange_import.h"

namespace orvex::exchange {

enum class ExportFormat { Aaf, Csv, Spreadsheet };

enum class ExportedClients { One, Group, All, Found };

// What goes out.
struct ExportRequest {
  ExportedClients Clients = ExportedClients::All;
  ExportFormat Format = ExportFormat::Aaf;
  std::int32_t Id = 0;  // of the client or the group
  core::Table Found;    // the list of those that were found; its rows have the ids as tags
  std::string Title;    // of the client, the group or the list
};

// Whether those clients can go out so: AAF takes all; CSV groups and all; a spreadsheet shows a
// list, so one client has none.
bool CanExport(ExportedClients clients, ExportFormat format);

// A name for the file, from the title: without what a path may not hold, with the ending.
std::string ExportFileName(const std::string& title, ExportFormat format);

// Writes the file (0600, beside and renamed); canceled, nothing is written. Refused where the file
// is one of the program's own or can't be written, and where no client goes out.
std::optional<core::Refusal> ExportClients(const core::Session& session,
                                           const ExportRequest& request,
                                           const std::filesystem::path& file,
                                           const ExchangeProgress& progress);

}  // namespace orvex::exchange
