#include "core/machine_settings.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>

#include "core/home.h"
#include "core/text.h"

namespace orvex::core {

namespace {

using Json = nlohmann::json;

struct Names {
  std::string AppName;
  std::string Section;
  std::string Key;
};

Names CheckedNames(const std::string& appName, const std::string& section, const std::string& key) {
  Names names{Trim(appName), Trim(section), Trim(key)};
  if (names.AppName.empty()) {
    throw MachineSettingError("AppName may not be empty");
  }
  if (names.Section.empty()) {
    throw MachineSettingError("Section may not be empty");
  }
  if (names.Key.empty()) {
    throw MachineSettingError("Key may not be empty");
  }
  return names;
}

// The whole file; an empty object where there is no file, or only the empty one that a power cut
// can leave.
Json Load(const std::filesystem::path& file, const char* message) {
  std::error_code error;
  if (!file.empty() &&
      (!std::filesystem::exists(file, error) || (std::filesystem::is_regular_file(file, error) &&
                                                 std::filesystem::file_size(file, error) == 0))) {
    return Json::object();
  }
  if (!std::filesystem::is_regular_file(file, error)) {
    throw MachineSettingError(message);
  }
  std::ifstream stream(file);
  Json settings = Json::parse(stream, nullptr, false);
  if (!settings.is_object()) {
    throw MachineSettingError(message);
  }
  return settings;
}

}  // namespace

std::filesystem::path MachineSettings::DefaultFile() {
  const char* configuration = std::getenv("XDG_CONFIG_HOME");
  if (configuration != nullptr && *configuration != '\0') {
    return std::filesystem::path(configuration) / "orvex" / "machine-settings.json";
  }
  const char* home = std::getenv("HOME");
  return home == nullptr || *home == '\0'
             ? std::filesystem::path()
             : std::filesystem::path(home) / ".config" / "orvex" / "machine-settings.json";
}

void MachineSettings::SaveMachineSetting(const std::string& appName, const std::string& section,
                                         const std::string& key, const std::string& value) const {
  const Names names = CheckedNames(appName, section, key);
  constexpr const char* kNotOpened = "Could not open/create registry section";
  if (file_.empty() || !MakePrivateFolders(file_.parent_path())) {
    throw MachineSettingError(kNotOpened);
  }
  // Programs of several homes share the file: what one adds must not undo what another did.
  constexpr std::chrono::seconds kPatience{5};
  const auto lock = FileLock::Acquire(file_.string() + ".lock", kPatience);
  if (!lock) {
    throw MachineSettingError(kNotOpened);
  }
  Json settings = Load(file_, kNotOpened);
  try {
    settings[names.AppName][names.Section][names.Key] = value;
    WriteFileSafely(file_, settings.dump(2) + "\n");
  } catch (const std::exception&) {
    throw MachineSettingError("Could not set key value");
  }
}

std::string MachineSettings::ReadMachineSetting(const std::string& appName,
                                                const std::string& section, const std::string& key,
                                                const std::string& fallback) const {
  const Names names = CheckedNames(appName, section, key);
  const Json settings = Load(file_, "Could not open registry section");
  const Json* place = &settings;
  for (const std::string* name : {&names.AppName, &names.Section, &names.Key}) {
    const auto found = place->find(*name);
    if (!place->is_object() || found == place->end()) {
      return fallback;
    }
    place = &*found;
  }
  if (!place->is_string()) {
    throw MachineSettingError("Registry data not a string");
  }
  return place->get<std::string>();
}

}  // namespace orvex::core
