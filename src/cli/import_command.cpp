#include <fstream>
#include <iostream>
#include <sstream>

#include "cli/context.h"
#include "cli/output.h"
#include "exchange/exchange_files.h"
#include "exchange/exchange_preview.h"
#include "practice/client_import.h"

namespace orvex::cli {

namespace {

struct ImportOptions {
  std::string File;
  std::optional<std::string> Group;
  bool DryRun = false;
  bool LeaveOut = false;
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

bool TellBirths(std::size_t done, std::size_t all) {
  constexpr std::size_t kEvery = 50;
  if (all > 0 && (done % kEvery == 0 || done == all)) {
    std::cerr << done << " of " << all << " births\n";
  }
  return true;
}

void PrintPlan(const exchange::ImportPlan& plan, std::size_t imported, const Context& context,
               bool withTable) {
  if (context.Json) {
    Json document = {
        {"imported", imported}, {"alreadyStored", plan.StoredCount()}, {"refused", Json::array()}};
    for (const exchange::RefusedBirth& refused : plan.Refused) {
      document["refused"].push_back(
          {{"file", refused.File}, {"line", refused.Line}, {"reason", refused.Reason}});
    }
    if (withTable) {
      document["tables"] = {{"Births", TableJson(exchange::PreviewTable(plan))}};
    }
    PrintJson(document);
  } else {
    if (withTable) {
      PrintTable(exchange::PreviewTable(plan));
    }
    std::cout << exchange::CountText(imported, plan) << "\n";
  }
  for (const exchange::RefusedBirth& refused : plan.Refused) {
    std::cerr << refused.File << " line " << refused.Line << ": " << refused.Reason << "\n";
  }
}

exchange::ImportPlan PlanOf(core::Session& session, const ImportOptions& options) {
  try {
    return exchange::PlanImport(
        session, {{options.File}, GroupFor(session, options.Group), core::ShippedDataFolder()},
        TellBirths);
  } catch (const core::StoreError&) {
    throw;
  } catch (const std::runtime_error& unread) {
    throw CommandFailed(unread.what());
  }
}

// Files of births of other programs: all of them or, where a line is refused, none.
void RunExchange(Context& context, const ImportOptions& options) {
  core::Session& session = options.DryRun ? context.Reading() : context.Writing();
  const exchange::ImportPlan plan = PlanOf(session, options);
  const auto refused =
      options.LeaveOut ? exchange::WithRefused::LeaveOut : exchange::WithRefused::SaveNothing;
  const bool isAll = options.LeaveOut || plan.Refused.empty();
  const std::size_t imported = !isAll ? 0
                               : options.DryRun
                                   ? plan.NewCount()
                                   : exchange::SaveImport(session, plan, refused, TellBirths);
  PrintPlan(plan, imported, context, options.DryRun);
  if (!isAll || plan.Births.empty()) {
    throw CommandFailed("Nothing was imported, because lines were refused.");
  }
}

void RunImport(Context& context, const ImportOptions& options) {
  if (exchange::IsExchangeSource(options.File)) {
    RunExchange(context, options);
    return;
  }
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
  Command command = AddCommand(
      app, "import", "take clients from a CSV, AAF, .jhd or .mtx file, or a folder of these three",
      [&context, options] { RunImport(context, *options); });
  command.add_option("FILE", options->File, "the file, or a folder of .aaf, .jhd and .mtx files")
      .required();
  command.add_option("--group", options->Group,
                     "id of the group of lines that name none; else the first by name");
  command.add_flag("--leave-out-refused", options->LeaveOut,
                   "of AAF, .jhd and .mtx: import the others where lines are refused");
  command.add_flag("--dry-run", options->DryRun, "check everything, write nothing");
}

}  // namespace orvex::cli
