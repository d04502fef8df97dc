#include <iostream>

#include "cli/context.h"
#include "cli/output.h"
#include "core/backup.h"

namespace orvex::cli {

namespace {

void PrintFile(const char* name, const std::filesystem::path& file, bool json) {
  if (json) {
    PrintJson({{name, file.string()}});
  } else {
    std::cout << file.string() << "\n";
  }
}

void RunBackup(Context& context) {
  const core::Session& session = context.Writing();
  PrintFile("backup",
            core::BackUpStore(session.Place, session.StoreConnection, session.Time,
                              core::BackupKind::ByHand),
            context.Json);
}

// A store that can't be opened is restored too, so no session is started before.
void RunRestore(Context& context, const std::string& file) {
  const core::Home home = context.Plan(core::StartMode::Writer).Place;
  constexpr std::chrono::milliseconds kPatience{2000};
  if (!core::MakePrivateFolders(home.DataFolder())) {
    throw CommandFailed("The home could not be made.");
  }
  const std::optional<core::FileLock> lock = core::FileLock::Acquire(home.LockFile(), kPatience);
  if (!lock) {
    throw CommandFailed("You can run only one instance of Orvex+ at a time.");
  }
  core::RestoreStore(home, file, context.Time());
  PrintFile("store", home.StoreFile(), context.Json);
}

}  // namespace

void AddStoreCommands(Command app, Context& context) {
  AddCommand(app, "init", "make the home and its store if they are missing",
             [&context] { PrintFile("store", context.Reading().Place.StoreFile(), context.Json); });
  AddCommand(app, "backup", "copy the store to the folder of its backups",
             [&context] { RunBackup(context); });
  auto file = std::make_shared<std::string>();
  AddCommand(app, "restore", "put a backup in the place of the store",
             [&context, file] { RunRestore(context, *file); })
      .add_option("FILE", *file, "the backup")
      .required();
}

}  // namespace orvex::cli
