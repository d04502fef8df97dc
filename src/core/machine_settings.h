// Machine-level settings: texts under an application and a section, kept in one small file of the
// user's configuration folder.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace orvex::core {

class MachineSettingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class MachineSettings {
 public:
  explicit MachineSettings(std::filesystem::path file) : file_(std::move(file)) {}

  // The file in the user's configuration folder ($XDG_CONFIG_HOME, else ~/.config). An empty path
  // where the user has neither.
  static std::filesystem::path DefaultFile();

  // Keeps a value. The names are trimmed; an empty one, and a file that can't be read or written:
  // MachineSettingError with the program's message.
  void SaveMachineSetting(const std::string& appName, const std::string& section,
                          const std::string& key, const std::string& value) const;

  // The value kept, or `fallback` where there is none. Errors as above, and for a value that is not
  // a text.
  std::string ReadMachineSetting(const std::string& appName, const std::string& section,
                                 const std::string& key, const std::string& fallback) const;

 private:
  std::filesystem::path file_;
};

}  // namespace orvex::core
