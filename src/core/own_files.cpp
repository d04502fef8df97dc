#include "core/own_files.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace orvex::core {

namespace {

namespace fs = std::filesystem;

// Where a file is or would be, every link followed.
fs::path PlaceOf(const fs::path& file) {
  std::error_code error;
  const fs::path absolute = fs::absolute(BehindLinks(file), error);
  return fs::weakly_canonical(absolute, error);
}

std::vector<fs::path> OwnFiles(const Session& session) {
  const Home& home = session.Place;
  const fs::path store = BehindLinks(home.StoreFile());
  std::vector<fs::path> files = {home.StoreFile(), store, store.string() + "-journal",
                                 home.LockFile(), home.ReportTemplate()};
  if (!session.MachineSettingsFile.empty()) {
    files.push_back(session.MachineSettingsFile);
  }
  std::error_code none;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(home.DataFolder() / "Backups", none)) {
    files.push_back(entry.path());
  }
  return files;
}

// Whether both names lead to one file, which need not be there yet.
bool IsSameFile(const fs::path& one, const fs::path& other) {
  std::error_code missing;
  return fs::equivalent(one, other, missing) || PlaceOf(one) == PlaceOf(other);
}

}  // namespace

void CheckFileToWrite(const Session& session, const fs::path& file) {
  const std::vector<fs::path> own = OwnFiles(session);
  const fs::path backups = PlaceOf(session.Place.DataFolder() / "Backups");
  const bool isOwn = std::any_of(own.begin(), own.end(), [&file](const fs::path& ownFile) {
    return IsSameFile(file, ownFile);
  });
  if (isOwn || PlaceOf(fs::absolute(BehindLinks(file)).parent_path()) == backups) {
    throw std::runtime_error("The file " + file.string() +
                             " belongs to Orvex+ itself: the database, its copies, the report "
                             "template or the settings. Please choose another name.");
  }
}

}  // namespace orvex::core
