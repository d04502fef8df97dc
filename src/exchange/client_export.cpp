#include "exchange/client_export.h"

#include "core/home.h"
#include "core/own_files.h"
#include "core/text.h"
#include "core/text_encoding.h"
#include "exchange/aaf_writing.h"
#include "practice/client_csv.h"
#include "practice/client_list.h"
#include "practice/export_list.h"

namespace orvex::exchange {

namespace {

std::optional<std::int32_t> GroupOf(const ExportRequest& request) {
  return request.Clients == ExportedClients::Group ? std::optional(request.Id) : std::nullopt;
}

core::Table ListOf(const core::Session& session, const ExportRequest& request) {
  return request.Clients == ExportedClients::Found
             ? request.Found
             : practice::LoadClientsOfGroup(session, GroupOf(request));
}

std::vector<std::int32_t> IdsOf(const core::Session& session, const ExportRequest& request) {
  return request.Clients == ExportedClients::One ? std::vector<std::int32_t>{request.Id}
                                                 : ClientIdsOf(ListOf(session, request));
}

core::Refusal NotWritten(const std::string& reason) {
  return {reason, core::MessageIcon::Stop, ""};
}

std::optional<core::Refusal> WriteCsv(const core::Session& session, const ExportRequest& request,
                                      const std::filesystem::path& file) {
  try {
    core::WriteFileSafely(file, practice::ClientsAsCsv(session, GroupOf(request)));
    return std::nullopt;
  } catch (const std::runtime_error&) {
    return NotWritten("The file " + file.string() + " could not be written.");
  }
}

}  // namespace

bool CanExport(ExportedClients clients, ExportFormat format) {
  switch (format) {
    case ExportFormat::Csv:
      return clients == ExportedClients::Group || clients == ExportedClients::All;
    case ExportFormat::Spreadsheet:
      return clients != ExportedClients::One;
    default:
      return true;
  }
}

std::string ExportFileName(const std::string& title, ExportFormat format) {
  const char* ending = format == ExportFormat::Aaf   ? ".aaf"
                       : format == ExportFormat::Csv ? ".csv"
                                                     : ".xlsx";
  std::string name = core::WithoutControlCharacters(core::ReplaceAll(title, "/", "-"));
  // A name that begins with a point would be hidden.
  while (!name.empty() && name.front() == '.') {
    name.erase(0, 1);
  }
  return (name.empty() ? "Clients" : name) + ending;
}

std::optional<core::Refusal> ExportClients(const core::Session& session,
                                           const ExportRequest& request,
                                           const std::filesystem::path& file,
                                           const ExchangeProgress& progress) {
  try {
    core::CheckFileToWrite(session, file);
  } catch (const std::runtime_error& refused) {
    return NotWritten(refused.what());
  }
  const std::vector<std::int32_t> ids = IdsOf(session, request);
  if (ids.empty()) {
    return NotWritten("There are no clients in it.");
  }
  switch (request.Format) {
    case ExportFormat::Csv:
      return WriteCsv(session, request, file);
    case ExportFormat::Spreadsheet:
      return practice::ExportList(ListOf(session, request), file, request.Title);
    default:
      return ExportAaf(session, ids, file, progress);
  }
}

}  // namespace orvex::exchange
