#include "core/backup.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::core {

namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "ORVD-";
constexpr const char* kUnreadable = "unreadable-";
constexpr const char* kEnding = ".mdb";
constexpr const char* kHalf = ".new";           // a copy on its way
constexpr const char* kRestored = ".restored";  // a store on its way to its place
constexpr const char* kJournal = "-journal";

// What the names of a kind end with, in the order of BackupKind.
constexpr std::array<const char*, 5> kKindEndings = {".mdb", "-by-hand.mdb", "-before-deletion.mdb",
                                                     "-before-restore.mdb", "-before-upgrade.mdb"};

fs::path BackupFolder(const Home& home) { return home.DataFolder() / "Backups"; }

fs::path With(const fs::path& file, const char* ending) { return file.string() + ending; }

// "2026-11-24-103005", in the order of time.
std::string MomentName(DateTime moment) {
  return ReplaceAll(ReplaceAll(StoredDateTimeText(moment), ":", ""), " ", "-");
}

// The part of a copy's name that tells its moment.
std::string MomentPart(const fs::path& file) {
  constexpr std::size_t kMomentLength = 17;
  return file.filename().string().substr(std::string_view(kPrefix).size(), kMomentLength);
}

bool IsOfKind(const fs::path& file, BackupKind kind) {
  const std::string name = file.filename().string();
  if (kind == BackupKind::Daily) {
    return std::none_of(kKindEndings.begin() + 1, kKindEndings.end(),
                        [&name](const char* other) { return name.ends_with(other); });
  }
  return name.ends_with(kKindEndings.at(static_cast<std::size_t>(kind)));
}

// The files of a folder whose names begin and end so, in the order of their names.
std::vector<fs::path> FilesNamed(const fs::path& folder, std::string_view start,
                                 std::string_view end) {
  std::vector<fs::path> files;
  std::error_code none;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, none)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(start) && name.ends_with(end)) {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

// The copies in the folder, oldest first.
std::vector<fs::path> Backups(const Home& home) {
  return FilesNamed(BackupFolder(home), kPrefix, kEnding);
}

std::vector<fs::path> BackupsOfKind(const Home& home, BackupKind kind) {
  std::vector<fs::path> files = Backups(home);
  std::erase_if(files, [kind](const fs::path& file) { return !IsOfKind(file, kind); });
  return files;
}

// A name behind those of the kind: of two copies of one second the second gets a number, and the
// next one a higher, also when the first has gone.
fs::path FreshName(const Home& home, const Clock& clock, BackupKind kind) {
  const std::string base = kPrefix + MomentName(clock.Now());
  const char* ending = kKindEndings.at(static_cast<std::size_t>(kind));
  std::int64_t number = 1;
  for (const fs::path& file : BackupsOfKind(home, kind)) {
    const std::string name = file.filename().string();
    if (name.starts_with(base)) {
      const bool numbered = name.substr(base.size(), 1) == "_";
      number = 1 + (numbered ? ParseWhole(name.substr(base.size() + 1, 3)).value_or(1) : 1);
    }
  }
  return BackupFolder(home) / (base + (number > 1 ? "_" + PaddedWhole(number, 3) : "") + ending);
}

// The oldest go; those of later moments are counted apart, so that they push out none of now.
void KeepTheLast(const Home& home, const Clock& clock, BackupKind kind, const fs::path& spared) {
  const std::string now = MomentName(clock.Now());
  for (const bool ahead : {false, true}) {
    std::vector<fs::path> files = BackupsOfKind(home, kind);
    std::erase_if(files, [&](const fs::path& file) { return (MomentPart(file) > now) != ahead; });
    while (files.size() > kBackupsKept) {
      std::error_code gone;
      if (!fs::equivalent(files.front(), spared, gone)) {
        fs::remove(files.front());
      }
      files.erase(files.begin());
    }
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

std::optional<Store> OpenIfReadable(const fs::path& file) {
  try {
    return Store::Open(file);
  } catch (const StoreError&) {
    return std::nullopt;
  }
}

// A store that can't be read is copied as it is, with the journal that a crash has left. The
// journal belongs to the old store: it goes before another one takes its place.
void KeepUnreadable(const Home& home, const fs::path& store, const Clock& clock) {
  const fs::path kept = BackupFolder(home) / (kUnreadable + MomentName(clock.Now()) + kEnding);
  for (const char* part : {"", kJournal}) {
    if (fs::exists(With(store, part))) {
      fs::copy_file(With(store, part), With(kept, part), fs::copy_options::overwrite_existing);
      fs::permissions(With(kept, part), fs::perms::owner_read | fs::perms::owner_write);
    }
  }
  fs::remove(With(store, kJournal));
}

// Keeps what stands in the store's place: as a backup, or as it is where it can't be read.
void KeepPresent(const Home& home, const fs::path& store, const fs::path& restored,
                 const Clock& clock) {
  try {
    if (const std::optional<Store> present = OpenIfReadable(store)) {
      BackUpStore(home, *present, clock, BackupKind::BeforeRestore, restored);
    } else {
      KeepUnreadable(home, store, clock);
    }
  } catch (const std::exception& error) {
    throw std::runtime_error("The present database could not be copied (" +
                             std::string(error.what()) + "); nothing was changed.");
  }
}

void CopyBeside(const fs::path& file, const fs::path& beside) {
  std::error_code error;
  fs::copy_file(file, beside, fs::copy_options::overwrite_existing, error);
  if (!error) {
    fs::permissions(beside, fs::perms::owner_read | fs::perms::owner_write, error);
  }
  if (error) {
    throw std::runtime_error("The file could not be copied (" + error.message() +
                             "); nothing was changed.");
  }
}

void RemoveQuietly(const fs::path& file) {
  std::error_code ignored;
  fs::remove(file, ignored);
}

}  // namespace

fs::path BackUpStore(const Home& home, const Store& store, const Clock& clock, BackupKind kind,
                     const fs::path& spared) {
  if (!MakePrivateFolders(BackupFolder(home))) {
    throw StoreError(StoreFault::Statement, "the folder of the backups could not be made");
  }
  fs::path file = FreshName(home, clock, kind);
  const fs::path beside = With(file, kHalf);
  try {
    RemoveQuietly(beside);
    RemoveQuietly(With(beside, kJournal));
    Store::Create(beside);
    store.BackUpTo(beside);
    fs::rename(beside, file);
  } catch (...) {
    RemoveQuietly(beside);
    RemoveQuietly(With(beside, kJournal));
    throw;
  }
  KeepTheLast(home, clock, kind, spared);
  return file;
}

void BackUpStoreDaily(const Home& home, const Store& store, const Clock& clock) {
  const std::string today = StoredDateTimeText(clock.Now()).substr(0, 10);
  const std::vector<fs::path> files = Backups(home);
  const bool done = std::any_of(files.begin(), files.end(), [&today](const fs::path& file) {
    return IsOfKind(file, BackupKind::Daily) && MomentPart(file).starts_with(today);
  });
  if (!done) {
    BackUpStore(home, store, clock, BackupKind::Daily);
  }
}

std::optional<fs::path> NewestBackup(const Home& home, const Clock& clock) {
  std::vector<fs::path> files = Backups(home);
  if (files.empty()) {
    return std::nullopt;
  }
  // Those of later moments first, so that the last one is the newest of now.
  const std::string now = MomentName(clock.Now());
  std::stable_partition(files.begin(), files.end(),
                        [&now](const fs::path& file) { return MomentPart(file) > now; });
  return files.back();
}

bool HasBackups(const Home& home) {
  return !Backups(home).empty() || !FilesNamed(BackupFolder(home), kUnreadable, kEnding).empty();
}

void RemoveHalfCopies(const Home& home) {
  for (const std::string& half : {std::string(kHalf), kHalf + std::string(kJournal)}) {
    for (const fs::path& file : FilesNamed(BackupFolder(home), kPrefix, half)) {
      RemoveQuietly(file);
    }
  }
  const fs::path store = BehindLinks(home.StoreFile());
  for (const char* half : {kHalf, kRestored}) {
    RemoveQuietly(With(store, half));
    RemoveQuietly(With(With(store, half), kJournal));
  }
}

void RestoreStore(const Home& home, const fs::path& file, const Clock& clock) {
  if (!fs::is_regular_file(file)) {
    throw std::runtime_error(FaultText(StoreFault::Missing));
  }
  if (!MakePrivateFolders(BackupFolder(home))) {
    throw std::runtime_error("The folder of the backups could not be made; nothing was changed.");
  }
  const fs::path store = BehindLinks(home.StoreFile());
  const fs::path beside = With(store, kRestored);
  RemoveQuietly(With(beside, kJournal));
  try {
    CopyBeside(file, beside);
    CheckWhole(beside);
    KeepPresent(home, store, file, clock);
    fs::rename(beside, store);
  } catch (...) {
    RemoveQuietly(beside);
    RemoveQuietly(With(beside, kJournal));
    throw;
  }
}

}  // namespace orvex::core
