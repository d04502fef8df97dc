#include "core/backup.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::core {

namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "ORVD-";
constexpr const char* kEnding = ".mdb";

fs::path BackupFolder(const Home& home) { return home.DataFolder() / "Backups"; }

// "2026-11-24-103005", in the order of time.
std::string MomentName(DateTime moment) {
  return ReplaceAll(ReplaceAll(StoredDateTimeText(moment), ":", ""), " ", "-");
}

// The copies in the folder, oldest first.
std::vector<fs::path> Backups(const Home& home) {
  std::vector<fs::path> files;
  std::error_code none;
  for (const fs::directory_entry& entry : fs::directory_iterator(BackupFolder(home), none)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(kPrefix) && name.ends_with(kEnding)) {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

// A name that no file has yet: of two copies of one second the second gets a number.
fs::path FreshName(const Home& home, const Clock& clock) {
  const std::string base = kPrefix + MomentName(clock.Now());
  fs::path file = BackupFolder(home) / (base + kEnding);
  for (int number = 2; fs::exists(file); ++number) {
    file = BackupFolder(home) / (base + "_" + PaddedWhole(number, 3) + kEnding);
  }
  return file;
}

void KeepTheLast(const Home& home, const fs::path& made) {
  std::vector<fs::path> files = Backups(home);
  // A clock that was put back must not make the newest copy the first to go.
  std::erase(files, made);
  while (files.size() >= kBackupsKept) {
    fs::remove(files.front());
    files.erase(files.begin());
  }
}

const char* FaultText(StoreFault fault) {
  switch (fault) {
    case StoreFault::Missing:
      return "There is no such file; nothing was changed.";
    case StoreFault::LaterRelease:
      return "The file was written by a later release of Orvex+; nothing was changed.";
    case StoreFault::Foreign:
      return "The file is no database of Orvex+; nothing was changed.";
    default:
      return "The file is damaged; nothing was changed.";
  }
}

void CheckWhole(const fs::path& file) {
  try {
    const Store store = Store::Open(file);
    const Result found = store.Query("Select integrity_check from pragma_integrity_check");
    if (found.Text("integrity_check") != "ok") {
      throw StoreError(StoreFault::Damaged, "the integrity check failed");
    }
  } catch (const StoreError& error) {
    throw std::runtime_error(FaultText(error.Fault()));
  }
}

// Keeps what stands in the store's place: as a copy, or as it is where it can't be read. A journal
// left by a crash belongs to the old file; opening the store or moving it away takes it along.
void KeepPresent(const Home& home, const Clock& clock) {
  if (!fs::exists(home.StoreFile())) {
    return;
  }
  try {
    BackUpStore(home, Store::Open(home.StoreFile()), clock);
  } catch (const StoreError&) {
    const fs::path kept = BackupFolder(home) / ("unreadable-" + MomentName(clock.Now()) + kEnding);
    fs::rename(home.StoreFile(), kept);
    const fs::path journal = home.StoreFile().string() + "-journal";
    if (fs::exists(journal)) {
      fs::rename(journal, kept.string() + "-journal");
    }
  }
}

}  // namespace

fs::path BackUpStore(const Home& home, const Store& store, const Clock& clock) {
  if (!MakePrivateFolders(BackupFolder(home))) {
    throw StoreError(StoreFault::Statement, "the folder of the backups could not be made");
  }
  fs::path file = FreshName(home, clock);
  const fs::path beside = file.string() + ".new";
  fs::remove(beside);
  fs::remove(beside.string() + "-journal");
  Store::Create(beside);
  store.BackUpTo(beside);
  fs::rename(beside, file);
  KeepTheLast(home, file);
  return file;
}

void BackUpStoreDaily(const Home& home, const Store& store, const Clock& clock) {
  const std::string today = kPrefix + StoredDateTimeText(clock.Now()).substr(0, 10);
  const std::vector<fs::path> files = Backups(home);
  const bool done = std::any_of(files.begin(), files.end(), [&today](const fs::path& file) {
    return file.filename().string().starts_with(today);
  });
  if (!done) {
    BackUpStore(home, store, clock);
  }
}

void RestoreStore(const Home& home, const fs::path& file, const Clock& clock) {
  if (!fs::is_regular_file(file)) {
    throw std::runtime_error(FaultText(StoreFault::Missing));
  }
  if (!MakePrivateFolders(BackupFolder(home))) {
    throw std::runtime_error("The folder of the backups could not be made; nothing was changed.");
  }
  const fs::path beside = home.StoreFile().string() + ".restored";
  fs::copy_file(file, beside, fs::copy_options::overwrite_existing);
  fs::permissions(beside, fs::perms::owner_read | fs::perms::owner_write);
  try {
    CheckWhole(beside);
    KeepPresent(home, clock);
  } catch (...) {
    fs::remove(beside);
    throw;
  }
  fs::rename(beside, home.StoreFile());
}

}  // namespace orvex::core
