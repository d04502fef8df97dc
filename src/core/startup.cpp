#include "core/startup.h"

#include "core/attempt.h"
#include "core/backup.h"
#include "core/exact_numbers.h"
#include "core/store_schema.h"
#include "core/text.h"

namespace orvex::core {

namespace {

constexpr const char* kNoRights =
    "You need to have Admin rights to run Orvex+. Please right click on Orvex+.EXE and choose "
    "'Run as Administrator'.";
constexpr const char* kOneInstance = "You can run only one instance of Orvex+ at a time.";
constexpr const char* kNoDatabase =
    "Orvex+ could not find the database under the Data folder or the database drivers are "
    "missing/corrupt. Please contact your administrator.";
constexpr const char* kLaterRelease =
    "The database was written by a later release of Orvex+. Please install that release to open "
    "it; nothing was changed.";
constexpr const char* kReadOnlyDatabase =
    "The database may not be written. Please give yourself the right to write the file ORVD.mdb "
    "under the Data folder; nothing was changed.";
constexpr const char* kStartFailed =
    "Orvex+ encountered an issue while starting. Please restart Orvex+ and retry.";

constexpr const char* kNoUpgradeCopy =
    "The database of an earlier release could not be copied before it is brought up to date; "
    "nothing was changed.";
constexpr const char* kBackupsStay =
    "Nothing was changed. To begin with an empty database, move the folder Backups out of the Data "
    "folder.";

constexpr const char* kNoBackup =
    "The daily copy of the database could not be made. Please check the folder Backups under the "
    "Data folder.";

constexpr const char* kMachineApp = "Orvex 3.0";
constexpr const char* kMachineSection = "Settings";

// Carries the message of a refused start to the one place where it is shown.
struct StartRefusal {
  std::string Text;
};

const char* OpenFailureText(StoreFault fault) {
  switch (fault) {
    case StoreFault::LaterRelease:
      return kLaterRelease;
    case StoreFault::ReadOnly:
      return kReadOnlyDatabase;
    default:
      return kNoDatabase;
  }
}

std::optional<FileLock> LockHome(const StartupPlan& plan) {
  constexpr std::chrono::milliseconds kNoPatience{0};
  constexpr std::chrono::milliseconds kPatience{2000};
  const bool waits =
      plan.Mode == StartMode::Writer || !std::filesystem::exists(plan.Place.StoreFile());
  std::optional<FileLock> lock =
      FileLock::Acquire(plan.Place.LockFile(), waits ? kPatience : kNoPatience);
  if (!lock && plan.Mode != StartMode::Reader) {
    throw StartRefusal{kOneInstance};
  }
  return lock;
}

// A new home gets the shipped template, which its owner may then change; an own one stays.
void CopyReportTemplate(const StartupPlan& plan) {
  const std::filesystem::path own = plan.Place.ReportTemplate();
  if (!std::filesystem::exists(own)) {
    WriteFileSafely(own, ReadTextFile(plan.ShippedData / own.filename()));
  }
}

// A home that has copies but no store lost it. The workbench offers the newest copy, a command
// names the way to it; neither begins an empty store.
void OfferBackup(const StartupPlan& plan, const Clock& clock, Messages& messages) {
  const std::optional<std::filesystem::path> newest = NewestBackup(plan.Place, clock);
  const std::string lost =
      "There is no database under the Data folder of " + plan.Place.Folder.string() +
      (newest ? ", but there are copies of it. The newest is " + newest->string() + "."
              : ", but one that could not be read was kept in its folder Backups.");
  if (!newest || plan.Mode != StartMode::Owner) {
    throw StartRefusal{lost + (newest ? " To put it in its place: orvex-cli --home \"" +
                                            plan.Place.Folder.string() + "\" restore \"" +
                                            newest->string() + "\""
                                      : std::string(" ") + kBackupsStay)};
  }
  if (messages.ShowMessage(lost + " Do you want to put it in its place?", MessageButtons::YesNo,
                           MessageIcon::Question) != MessageAnswer::Yes) {
    throw StartRefusal{kBackupsStay};
  }
  try {
    RestoreStore(plan.Place, *newest, clock);
  } catch (const std::exception& error) {
    throw StartRefusal{error.what()};
  }
}

// Makes the store of a home that never had one. A link that leads nowhere is a store out of reach.
void MakeMissingStore(const StartupPlan& plan, const Clock& clock, Messages& messages) {
  const std::filesystem::path file = plan.Place.StoreFile();
  if (std::filesystem::exists(file) || std::filesystem::is_symlink(file)) {
    return;
  }
  if (HasBackups(plan.Place)) {
    OfferBackup(plan, clock, messages);
    return;
  }
  if (!MakePrivateFolders(plan.Place.DataFolder())) {
    throw StartRefusal{kNoDatabase};
  }
  CopyReportTemplate(plan);
  CreateStore(file, plan.ShippedData);
}

Store OpenStore(const StartupPlan& plan, bool locked, const Clock& clock, Messages& messages) {
  try {
    if (locked) {
      RemoveHalfCopies(plan.Place);
      MakeMissingStore(plan, clock, messages);
    }
    return Store::Open(plan.Place.StoreFile());
  } catch (const StartRefusal&) {
    throw;
  } catch (const StoreError& error) {
    throw StartRefusal{OpenFailureText(error.Fault())};
  } catch (const std::exception&) {
    throw StartRefusal{kNoDatabase};
  }
}

// The two values that are kept for the machine; a file that can't be used is told and passed over.
void WriteMachineSettings(const StartupPlan& plan, Messages& messages) try {
  const MachineSettings settings(plan.MachineSettingsFile);
  const auto keep = [&settings](const char* key, const std::string& value) {
    if (settings.ReadMachineSetting(kMachineApp, kMachineSection, key, "") != value) {
      settings.SaveMachineSetting(kMachineApp, kMachineSection, key, value);
    }
  };
  keep("InstallFolder", std::filesystem::absolute(plan.Place.Folder).string());
  keep("CurrentVersion", ProgramVersion());
} catch (const MachineSettingError& error) {
  messages.ShowMessage("The settings file of this machine, " + plan.MachineSettingsFile.string() +
                           ", can't be used and is passed over: " + error.what() + ".",
                       MessageButtons::Ok, MessageIcon::Information);
}

// The store as it was, before an upgrade changes it.
void CopyBeforeUpgrade(const StartupPlan& plan, const Store& store, const Clock& clock) {
  if (NeedsUpgrade(store) &&
      !Attempt([&] { BackUpStore(plan.Place, store, clock, BackupKind::BeforeUpgrade); })) {
    throw StartRefusal{kNoUpgradeCopy};
  }
}

std::unique_ptr<Session> Start(const StartupPlan& plan, const Clock& clock, Messages& messages,
                               astro::EphemerisGateway& ephemeris) {
  if (!MakePrivateFolders(plan.Place.Folder) || !MayWrite(plan.Place.Folder)) {
    throw StartRefusal{kNoRights};
  }
  std::optional<FileLock> lock = LockHome(plan);
  Store store = OpenStore(plan, lock.has_value(), clock, messages);
  if (plan.Mode != StartMode::Reader &&
      !Attempt([&] { BackUpStoreDaily(plan.Place, store, clock); })) {
    messages.ShowMessage(kNoBackup, MessageButtons::Ok, MessageIcon::Information);
  }
  if (lock) {
    CopyBeforeUpgrade(plan, store, clock);
  }
  try {
    // A reader beside a running program leaves the repairs to that program.
    if (lock) {
      ApplyStoreUpgrades(store, plan.ShippedData);
    }
    ReferenceData reference = LoadReferenceData(store);
    auto session = std::make_unique<Session>(Session{plan.Place, std::move(store),
                                                     std::move(reference), ApplicationState(),
                                                     clock, messages, ephemeris, std::nullopt});
    session->MachineSettingsFile = plan.MachineSettingsFile;
    LoadSessionSettings(*session);
    LoadUserCity(*session);
    if (lock) {
      WriteMachineSettings(plan, messages);
    }
    if (plan.Mode != StartMode::Reader) {
      session->Lock = std::move(lock);
    }
    return session;
  } catch (const std::exception&) {
    throw StartRefusal{kStartFailed};
  }
}

char LetterOr(const std::string& text, std::string_view allowed, char fallback) {
  const bool known = text.size() == 1 && Contains(allowed, text);
  return known ? text.front() : fallback;
}

void LoadOrbs(const Result& row, ApplicationState& state) {
  for (std::size_t i = 0; i < kAspectCount; ++i) {
    const std::string orb = row.Text(kAspects[i].OrbColumn);
    if (!orb.empty()) {
      const auto degrees = static_cast<std::int16_t>(RoundToWhole(ToDouble(orb)));
      state.AspectBands[i] = {static_cast<std::int16_t>(kAspects[i].Aspect - degrees),
                              static_cast<std::int16_t>(kAspects[i].Aspect + degrees)};
    }
  }
  for (std::size_t i = 0; i < kAspectCount; ++i) {
    state.Orbs[i] =
        static_cast<std::int16_t>(RoundToWhole(ToDouble(row.Text(kAspects[i].OrbColumn))));
  }
}

}  // namespace

const char* ProgramVersion() { return ORVEX_VERSION; }

std::unique_ptr<Session> RunStartup(const StartupPlan& plan, const Clock& clock, Messages& messages,
                                    astro::EphemerisGateway& ephemeris) {
  try {
    return Start(plan, clock, messages, ephemeris);
  } catch (const StartRefusal& refusal) {
    messages.ShowMessage(refusal.Text, MessageButtons::Ok, MessageIcon::Stop);
    return nullptr;
  }
}

void LoadSessionSettings(Session& session) {
  ApplicationState& state = session.State;
  const Result row = session.StoreConnection.Query("Select Top 1 * from settings");
  state.RahuKetuCalculation = LetterOr(row.Text("RahuKetuCalculation"), "T", 'M');
  state.DefaultChartType = LetterOr(row.Text("DefaultChartType"), "ES", 'N');
  state.ChartPath = row.Text("chartpath");
  if (state.ChartPath.empty()) {
    state.ChartPath = session.Place.ChartFolder().string();
  }
  state.AstrologerName = row.Text("AstrologerName");
  state.AstrologerOrganization = row.Text("AstrologerOrganization");
  state.AstrologerContactDetails = row.Text("AstrologerContactDetails");
  LoadOrbs(row, state);
  state.StatusBarDegreeCalc = LetterOr(row.Text("StatusBarDegreeCalc"), "R", 'A');
  state.SortColumn = SortColumnOfCode(row.Text("SortByField"));

  const std::string groupId = row.Text("ICGroupID");
  const Result group = session.StoreConnection.Query(
      "Select groupname from group_master where id = " + (groupId.empty() ? "0" : groupId));
  state.InstantChartGroupId =
      group.AtEnd() ? 0 : static_cast<std::int32_t>(row.Integer("ICGroupID"));
  state.InstantChartGroupName = group.AtEnd() ? "" : group.Text("groupname");
}

void LoadUserCity(Session& session) {
  const Result city = session.StoreConnection.Query(
      "Select cm.* from city_master cm, settings s where s.usercityid = cm.id");
  ApplicationState& state = session.State;
  if (city.AtEnd()) {
    const ApplicationState defaults;
    state.UserCityId = defaults.UserCityId;
    state.UserCityName = defaults.UserCityName;
    state.UserCityLatitude = defaults.UserCityLatitude;
    state.UserCityLongitude = defaults.UserCityLongitude;
    state.UserCityOffset = defaults.UserCityOffset;
    return;
  }
  state.UserCityId = static_cast<std::int32_t>(city.Integer("id"));
  state.UserCityName = city.Text("cityname");
  state.UserCityLatitude = static_cast<float>(city.Number("latitude"));
  state.UserCityLongitude = static_cast<float>(city.Number("longitude"));
  state.UserCityOffset = static_cast<float>(city.Number("offset"));
}

}  // namespace orvex::core
