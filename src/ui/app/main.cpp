#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <iostream>

#include "core/date_text.h"
#include "core/startup.h"
#include "ui/app/start.h"

namespace {

int RunProgram(int argc, char** argv) {
  orvex::ui::StartOptions options;
  CLI::App app("Orvex+, the workbench of the KP astrologer", "orvex");
  app.set_version_flag("--version", orvex::core::ProgramVersion());
  CLI::Option* home = app.add_option("--home", options.Home, "the install folder")
                          ->check([](const std::string& text) {
                            return text.empty() ? std::string("a folder is needed") : "";
                          });
  app.add_flag("--demo", options.Demo, "the demonstration: public charts in a home of its own")
      ->excludes(home);
  app.add_option("--now", options.Now, "a clock that stands still, YYYY-MM-DD HH:MM:SS")
      ->check([](const std::string& text) {
        return orvex::core::ParseDateTime(text) ? std::string() : "\"" + text + "\" is no moment";
      });
  CLI11_PARSE(app, argc, argv);
  return orvex::ui::RunWorkbench(argc, argv, options);
}

}  // namespace

int main(int argc, char** argv) {
  constexpr int kFailed = 1;
  // Whatever the program makes holds private data.
  ::umask(S_IRWXG | S_IRWXO);
  try {
    return RunProgram(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return kFailed;
  }
}
