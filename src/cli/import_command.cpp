#include <fstream>
#include <iostream>
#include <sstream>

#include "cli/context.h"
#include "cli/output.h"
#include "practice/client_import.h"

namespace orvex::cli {

namespace {

struct ImportOptions {
  std::string File;
  std::optional<std::string> Group;
  bool DryRun = false;
};

std::string ReadWhole(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  if (!stream) {
    throw CommandFailed("The file " + file + " could not be read.");
  }
  return text.str();
}

void PrintReport(const practice::ImportReport& report, bool json) {
  if (json) {
    Json document = {{"imported", report.Imported},
                     {"alreadyStored", report.AlreadyStored},
                     {"refused", Json::array()}};
    for (const practice::RefusedLine& line : report.Refused) {
      document["refused"].push_back({{"line", line.Line}, {"reason", line.Reason}});
    }
    PrintJson(document);
  } else {
    std::cout << report.Imported << " imported, " << report.AlreadyStored << " already stored, "
              << report.Refused.size() << " refused\n";
  }
  for (const practice::RefusedLine& line : report.Refused) {
    std::cerr << "line " << line.Line << ": " << line.Reason << "\n";
  }
}

void RunImport(Context& context, const ImportOptions& options) {
  core::Session& session = options.DryRun ? context.Reading() : context.Writing();
  const practice::ImportRequest request{ReadWhole(options.File), GroupFor(session, options.Group),
                                        options.DryRun};
  const practice::ImportReport report = practice::ImportClients(
      session, request,
      [](std::size_t done, std::size_t all) { std::cerr << done << " of " << all << " lines\n"; });
  PrintReport(report, context.Json);
  if (!report.Refused.empty() && report.Imported + report.AlreadyStored == 0) {
    throw CommandFailed("");
  }
}

}  // namespace

void AddImportCommand(Command app, Context& context) {
  auto options = std::make_shared<ImportOptions>();
  Command command = AddCommand(app, "import", "take clients from a CSV file",
                               [&context, options] { RunImport(context, *options); });
  command.add_option("FILE", options->File, "the CSV file").required();
  command.add_option("--group", options->Group,
                     "id of the group of lines that name none; else the first by name");
  command.add_flag("--dry-run", options->DryRun, "check everything, write nothing");
}

}  // namespace orvex::cli
