// Everything that lives for as long as the program does, handed by reference to whatever needs it.
#pragma once

#include <filesystem>
#include <optional>

#include "core/application_state.h"
#include "core/clock.h"
#include "core/home.h"
#include "core/messages.h"
#include "core/reference_data.h"
#include "core/store.h"

namespace orvex::astro {
class EphemerisGateway;
}

namespace orvex::core {

struct Session {
  Home Place;
  Store StoreConnection;
  ReferenceData Reference;
  ApplicationState State;
  const Clock& Time;
  Messages& Shown;
  astro::EphemerisGateway& Ephemeris;
  std::optional<FileLock> Lock;  // held by a program that writes
  std::filesystem::path MachineSettingsFile = {};
};

}  // namespace orvex::core
