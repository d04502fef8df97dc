#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <iostream>

#include "cli/context.h"

namespace {

using orvex::cli::Context;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kCallOff = 2;

// A command is missing its words where CLI11 says so; help and version are no errors.
int CallOff(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
    return app.exit(error);
  }
  std::cerr << error.what() << "\nUsage: " << app.get_name()
            << " [--home DIR | --demo] [--now \"YYYY-MM-DD HH:MM:SS\"] COMMAND ...  (--help tells "
               "more)\n";
  return kCallOff;
}

int Run(CLI::App& app, int argc, char** argv) {
  try {
    app.parse(argc, argv);
    return kDone;
  } catch (const CLI::ParseError& error) {
    return CallOff(app, error);
  } catch (const std::exception& error) {
    if (*error.what() != '\0') {
      std::cerr << error.what() << "\n";
    }
    return kFailed;
  }
}

// Sets up the commands and runs the call.
int RunProgram(int argc, char** argv) {
  Context context;
  CLI::App app("Orvex+ at the command line: charts and client records without a window",
               "orvex-cli");
  app.set_version_flag("--version", orvex::core::ProgramVersion());
  CLI::Option* home = app.add_option("--home", context.HomeOption, "the install folder");
  app.add_flag("--demo", context.Demo, "the demonstration in a home of its own")->excludes(home);
  app.add_option("--now", context.NowOption, "the clock of the run, YYYY-MM-DD HH:MM:SS");
  app.add_flag("--json", context.Json, "print one JSON document");
  app.require_subcommand(1);
  app.fallthrough();

  const orvex::cli::Command commands(&app);
  orvex::cli::AddStoreCommands(commands, context);
  orvex::cli::AddCityCommands(commands, context);
  orvex::cli::AddGroupCommands(commands, context);
  orvex::cli::AddClientCommands(commands, context);
  orvex::cli::AddChartCommands(commands, context);
  orvex::cli::AddHoroscopeCommands(commands, context);
  orvex::cli::AddDivisionalCommands(commands, context);
  orvex::cli::AddChartsCommands(commands, context);
  orvex::cli::AddReportCommands(commands, context);
  orvex::cli::AddPlanetCommands(commands, context);
  orvex::cli::AddRemedyCommands(commands, context);
  orvex::cli::AddExactCommands(commands, context);
  orvex::cli::AddTransitCommands(commands, context);
  orvex::cli::AddSearchCommands(commands, context);
  orvex::cli::AddExportCommands(commands, context);
  orvex::cli::AddImportCommand(commands, context);
  orvex::cli::AddSettingsCommands(commands, context);
  orvex::cli::AddSkyCommands(commands, context);

  const int status = Run(app, argc, argv);
  if (context.EphemerisFellBack()) {
    std::cerr << "The Swiss Ephemeris files were not found; positions come from the library's own "
                 "analytical ephemeris.\n";
  }
  if (context.EphemerisFailed()) {
    std::cerr << "The Swiss Ephemeris has no positions for this date; the chart is not to be "
                 "trusted.\n";
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  // Whatever the program makes holds private data.
  ::umask(S_IRWXG | S_IRWXO);
  try {
    return RunProgram(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return kFailed;
  }
}
