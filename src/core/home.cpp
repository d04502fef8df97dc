#include "core/home.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <utility>

#include "core/staged_files.h"

namespace orvex::core {

namespace fs = std::filesystem;

namespace {

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

// A folder under the "share" beside the installed program; where there is none, that of the build.
fs::path InstalledOr(const char* folder, const char* built) {
  const fs::path installed = ProgramFolder() / ".." / "share" / folder;
  std::error_code error;
  return fs::is_directory(installed, error) ? fs::canonical(installed) : fs::path(built);
}

}  // namespace

bool MakePrivateFolders(const fs::path& folder) {
  constexpr mode_t kPrivate = 0700;
  std::error_code error;
  fs::path made;
  for (const fs::path& part : fs::absolute(folder)) {
    made /= part;
    if (part.empty() || fs::is_directory(made, error)) {
      continue;
    }
    // Another process may make it at the same time.
    if (::mkdir(made.c_str(), kPrivate) != 0 && !fs::is_directory(made, error)) {
      return false;
    }
  }
  return true;
}

fs::path BehindLinks(const fs::path& path) {
  constexpr int kMostLinks = 40;
  fs::path place = path;
  std::error_code error;
  for (int link = 0; link < kMostLinks && fs::is_symlink(place, error); ++link) {
    place = place.parent_path() / fs::read_symlink(place, error);
  }
  return place;
}

bool MayWrite(const fs::path& folder) { return ::access(folder.c_str(), W_OK | X_OK) == 0; }

std::optional<FileLock> FileLock::Acquire(const fs::path& file,
                                          std::chrono::milliseconds patience) {
  constexpr mode_t kPrivate = 0600;
  constexpr std::chrono::milliseconds kPause{20};
  const int descriptor = ::open(file.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, kPrivate);
  if (descriptor < 0) {
    return std::nullopt;
  }
  FileLock lock(descriptor);
  const auto end = std::chrono::steady_clock::now() + patience;
  while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (std::chrono::steady_clock::now() >= end) {
      return std::nullopt;
    }
    std::this_thread::sleep_for(kPause);
  }
  return lock;
}

FileLock::FileLock(FileLock&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

FileLock::~FileLock() {
  if (descriptor_ >= 0) {
    ::close(descriptor_);
  }
}

fs::path UserDataFolder() {
  const std::string data = Environment("XDG_DATA_HOME");
  if (!data.empty()) {
    return data;
  }
  const std::string user = Environment("HOME");
  if (user.empty()) {
    throw std::runtime_error(
        "Orvex+ needs a folder for its records: please give --home DIR or set HOME.");
  }
  return fs::path(user) / ".local" / "share";
}

fs::path HomeFolder(const std::string& option) {
  if (!option.empty()) {
    return option;
  }
  if (const std::string home = Environment("ORVEX_HOME"); !home.empty()) {
    return home;
  }
  fs::path program = ProgramFolder();
  std::error_code error;
  if (fs::is_directory(program / "Data", error)) {
    return program;
  }
  return UserDataFolder() / "orvex";
}

fs::path ProgramFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : program.parent_path();
}

fs::path ShippedDataFolder() { return InstalledOr("orvex", ORVEX_DATA_FOLDER); }

fs::path GuideFile() { return InstalledOr("doc/orvex/guide", ORVEX_GUIDE_FOLDER) / "index.html"; }

std::string ReadTextFile(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  std::error_code ignored;
  if (!stream || !fs::is_regular_file(file, ignored)) {
    throw std::runtime_error("The file " + file.string() + " could not be read.");
  }
  return text.str();
}

void WriteFileSafely(const fs::path& file, const std::string& content) {
  StagedFiles files;
  files.Add(file, content);
  files.Commit();
}

}  // namespace orvex::core
