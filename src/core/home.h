// The install folder of one practice: its files and the lock that one running program holds on it.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace orvex::core {

struct Home {
  std::filesystem::path Folder;

  std::filesystem::path DataFolder() const { return Folder / "Data"; }
  std::filesystem::path StoreFile() const { return DataFolder() / "ORVD.mdb"; }
  std::filesystem::path ChartFolder() const { return Folder / "Charts"; }
  std::filesystem::path ReportTemplate() const { return Folder / "HoroscopeTemplate.htm"; }
  std::filesystem::path LockFile() const { return Folder / ".lock"; }
};

// Where the user's data folders lie: $XDG_DATA_HOME, else ~/.local/share. std::runtime_error where
// neither is set.
std::filesystem::path UserDataFolder();

// The home of a run: the option given, else $ORVEX_HOME, else the program's folder if it holds
// "Data", else the user's data folder. std::runtime_error that says what is needed where the
// user has none.
std::filesystem::path HomeFolder(const std::string& option);

// Makes the folder and those above it that are missing, with the rights 0700. False where one
// could not be made.
bool MakePrivateFolders(const std::filesystem::path& folder);

// Where a path leads when the links at its end are followed, also those that lead nowhere.
std::filesystem::path BehindLinks(const std::filesystem::path& path);

// Whether this user may write in the folder.
bool MayWrite(const std::filesystem::path& folder);

// A lock held on a file. The system releases it when the process ends, however it ends.
class FileLock {
 public:
  // Nothing where another process holds it for longer than `patience`, or where the file cannot be
  // made.
  static std::optional<FileLock> Acquire(const std::filesystem::path& file,
                                         std::chrono::milliseconds patience);

  FileLock(FileLock&& other) noexcept;
  FileLock& operator=(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

 private:
  explicit FileLock(int descriptor) : descriptor_(descriptor) {}
  int descriptor_;
};

// The folder of the reference tables and templates: beside the installed program, else that of the
// source tree that it was built from.
std::filesystem::path ShippedDataFolder();

// The first page of the user guide: beside the installed program, else in the build folder.
std::filesystem::path GuideFile();

// The folder of the running program.
std::filesystem::path ProgramFolder();

// The bytes of a file. std::runtime_error where it could not be read.
std::string ReadTextFile(const std::filesystem::path& file);

// Writes a file beside and renames it, with the rights 0600; the old file stays whole until then.
// std::runtime_error where it could not be written.
void WriteFileSafely(const std::filesystem::path& file, const std::string& content);

}  // namespace orvex::core
