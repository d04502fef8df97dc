// From the process to a running session.
#pragma once

#include <filesystem>
#include <memory>

#include "core/machine_settings.h"
#include "core/session.h"

namespace orvex::core {

// major.minor.revision of this build.
const char* ProgramVersion();

enum class StartMode {
  Owner,   // the program that holds the home for as long as it runs
  Writer,  // one writing command: waits a moment for another one to end
  Reader   // reads beside a running program
};

struct StartupPlan {
  Home Place;
  std::filesystem::path ShippedData;
  std::filesystem::path MachineSettingsFile;
  StartMode Mode = StartMode::Owner;
};

// Runs the checks of the start in order and gives the session, or shows the program's message and
// gives nothing. A home without a store gets a new one; where it has copies of one, an owner is
// asked whether the newest takes its place, and a command is refused with the way to it.
std::unique_ptr<Session> RunStartup(const StartupPlan& plan, const Clock& clock, Messages& messages,
                                    astro::EphemerisGateway& ephemeris);

// Reads the settings row and the user city into the state. An orb column that is Null or empty
// fails at its conversion (std::invalid_argument): its default protects the band only.
void LoadSessionSettings(Session& session);

// Reads the user city; a city that is gone leaves the default one.
void LoadUserCity(Session& session);

}  // namespace orvex::core
