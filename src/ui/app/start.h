// From the process to the main window.
#pragma once

#include <string>

namespace orvex::ui {

// The call's words.
struct StartOptions {
  std::string Home;
  bool Demo = false;  // the demonstration in place of a home
  std::string Now;    // a clock that stands still at this moment, for pictures and tests
};

// Shows the splash, starts the session and the main window, and runs until it is closed. Gives the
// exit status; 1 where the start was refused.
int RunWorkbench(int& argc, char** argv, const StartOptions& options);

}  // namespace orvex::ui
