#include <fcntl.h>
#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "cli/context.h"
#include "cli/visible_output.h"
#include "core/unicode_text.h"

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

std::string NoEmptyText(const std::string& text) {
  return text.empty() ? "a folder is needed" : "";
}

// Texts of a call are stored and shown as UTF-8. Names of files may be any bytes.
void RefuseWhatIsNoText(int argc, char** argv) {
  constexpr std::array<std::string_view, 6> kFileOptions = {"--home", "--file",     "--svg",
                                                            "--ics",  "--timeline", "--picture"};
  for (int at = 1; at < argc; ++at) {
    const bool names =
        std::find(kFileOptions.begin(), kFileOptions.end(), argv[at - 1]) != kFileOptions.end();
    std::error_code none;
    if (!names && !orvex::core::IsUtf8Text(argv[at]) && !std::filesystem::exists(argv[at], none)) {
      throw orvex::cli::CommandFailed("A text of the call is not in UTF-8: " +
                                      std::string(argv[at]));
    }
  }
}

// What is written to an output that is closed must neither end the program without a word nor get
// into a file that was opened in its place.
void GuardOutputs() {
  std::signal(SIGPIPE, SIG_IGN);
  for (const int output : {0, 1, 2}) {
    if (::fcntl(output, F_GETFD) < 0) {
      ::open("/dev/null", O_RDONLY);
    }
  }
}

// The status of a run whose output could not be written.
int CheckOutput(int status) {
  if (std::cout.flush()) {
    return status;
  }
  std::cerr << "Standard output could not be written.\n";
  return kFailed;
}

// Sets up the commands and runs the call.
int RunProgram(int argc, char** argv) {
  Context context;
  CLI::App app("Orvex+ at the command line: charts and client records without a window",
               "orvex-cli");
  app.set_version_flag("--version", orvex::core::ProgramVersion());
  CLI::Option* home =
      app.add_option("--home", context.HomeOption, "the install folder")->check(NoEmptyText);
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
  orvex::cli::AddSheetCommand(commands, context);
  orvex::cli::AddPlanetCommands(commands, context);
  orvex::cli::AddRemedyCommands(commands, context);
  orvex::cli::AddExactCommands(commands, context);
  orvex::cli::AddMattersCommands(commands, context);
  orvex::cli::AddMatterCommand(commands, context);
  orvex::cli::AddRulersCommand(commands, context);
  orvex::cli::AddTriggersCommand(commands, context);
  orvex::cli::AddBenchCommand(commands, context);
  orvex::cli::AddEventCommands(commands, context);
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
  GuardOutputs();
  const orvex::cli::VisibleOutput visible;
  try {
    RefuseWhatIsNoText(argc, argv);
    return CheckOutput(RunProgram(argc, argv));
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return kFailed;
  }
}
