#include "core/startup.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "core/exact_numbers.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

using test::TestHome;

constexpr const char* kOneInstance = "You can run only one instance of Orvex+ at a time.";
constexpr const char* kNoDatabase =
    "Orvex+ could not find the database under the Data folder or the database drivers are "
    "missing/corrupt. Please contact your administrator.";
constexpr const char* kStartFailed =
    "Orvex+ encountered an issue while starting. Please restart Orvex+ and retry.";

void ExpectRefused(TestHome& home, const char* message) {
  EXPECT_FALSE(home.Start());
  ASSERT_EQ(home.Messages.All().size(), 1U);
  EXPECT_EQ(home.Messages.All()[0].Text, message);
  EXPECT_EQ(home.Messages.All()[0].Icon, MessageIcon::Stop);
}

void Change(const TestHome& home, const char* statement) {
  Store store = Store::Open(home.Place.StoreFile());
  store.Execute(statement);
}

TEST(Startup, AHomeWithoutAStoreGetsANewOne) {
  TestHome home;
  std::filesystem::remove_all(home.Place.Folder);
  const auto session = home.Start();
  ASSERT_TRUE(session);
  EXPECT_EQ(session->Reference.Subs.size(), 249U);
  EXPECT_EQ(session->State.UserCityName, "Dubai");
  EXPECT_EQ(session->State.InstantChartGroupName, "General");
  EXPECT_EQ(session->State.ChartPath, (home.Place.Folder / "Charts").string());
}

TEST(Startup, AHomeThatMayNotBeWrittenIsRefused) {
  TestHome home;
  home.Place.Folder = "/proc/self/no-such-home";
  ExpectRefused(home,
                "You need to have Admin rights to run Orvex+. Please right click on Orvex+.EXE "
                "and choose 'Run as Administrator'.");
}

TEST(Startup, TheHomeBelongsToOneWriterAndAnyNumberOfReaders) {
  TestHome home;
  const auto first = home.Start(StartMode::Owner);
  ASSERT_TRUE(first);
  EXPECT_TRUE(home.Start(StartMode::Reader));
  EXPECT_TRUE(home.Start(StartMode::Reader));
  EXPECT_TRUE(home.Messages.All().empty());
  EXPECT_FALSE(home.Start(StartMode::Owner));
  EXPECT_FALSE(home.Start(StartMode::Writer));
  ASSERT_EQ(home.Messages.All().size(), 2U);
  EXPECT_EQ(home.Messages.All()[0].Text, kOneInstance);
  EXPECT_EQ(home.Messages.All()[1].Text, kOneInstance);
}

TEST(Startup, TheLockOfAKilledProcessIsFree) {
  TestHome home;
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const auto lock = FileLock::Acquire(home.Place.LockFile(), std::chrono::milliseconds(0));
    const char mark = lock ? 'y' : 'n';
    (void)!::write(ready[1], &mark, 1);
    ::pause();
    ::_exit(0);
  }
  char mark = 0;
  ASSERT_EQ(::read(ready[0], &mark, 1), 1);
  ASSERT_EQ(mark, 'y');
  EXPECT_FALSE(FileLock::Acquire(home.Place.LockFile(), std::chrono::milliseconds(0)));
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_TRUE(FileLock::Acquire(home.Place.LockFile(), std::chrono::milliseconds(0)));
}

TEST(Startup, AStoreThatCannotBeOpenedIsSaidSo) {
  TestHome home;
  std::ofstream(home.Place.StoreFile(), std::ios::trunc) << "not a store";
  ExpectRefused(home, kNoDatabase);
}

TEST(Startup, ALaterReleasesStoreIsRefusedWithItsOwnMessage) {
  TestHome home;
  {
    Store store = Store::Open(home.Place.StoreFile());
    store.ExecuteScript("pragma user_version = 99");
  }
  const std::string before = test::ReadFile(home.Place.StoreFile());
  EXPECT_FALSE(home.Start());
  ASSERT_EQ(home.Messages.All().size(), 1U);
  EXPECT_NE(home.Messages.All()[0].Text.find("later release"), std::string::npos);
  EXPECT_EQ(test::ReadFile(home.Place.StoreFile()), before);
}

TEST(Startup, AFailureWhileStartingIsSaidAndWhatWasAddedStays) {
  TestHome home;
  ASSERT_TRUE(home.Start());
  {
    Store store = Store::Open(home.Place.StoreFile());
    store.Execute("Delete from group_master");
    store.ExecuteScript("alter table settings drop column ICGroupID");
    store.ExecuteScript("alter table settings drop column Orbit_30");
  }
  ExpectRefused(home, kStartFailed);
  const Store store = Store::Open(home.Place.StoreFile());
  EXPECT_NO_THROW(store.Query("Select ICGroupID, Orbit_30 from settings"));
}

TEST(Startup, AnEmptyOrbFailsAlthoughItsBandHasADefault) {
  for (const char* value : {"null", "''"}) {
    TestHome home;
    ASSERT_TRUE(home.Start());
    Change(home, (std::string("Update settings set Orbit_120 = ") + value).c_str());
    ExpectRefused(home, kStartFailed);
  }
}

TEST(Startup, SettingsComeInWithTheirDefaults) {
  struct {
    const char* change;
    char node;
    char chart;
    char degree;
    const char* sort;
    int cityId;
    int groupId;
  } const cases[] = {
      {"usercityid = 19", 'M', 'N', 'A', "cm.FullName", 19, 1},
      {"RahuKetuCalculation = 'T', DefaultChartType = 'S'", 'T', 'S', 'A', "cm.FullName", 19, 1},
      {"RahuKetuCalculation = 'X', DefaultChartType = null", 'M', 'N', 'A', "cm.FullName", 19, 1},
      {"StatusBarDegreeCalc = 'R', SortByField = 'eml'", 'M', 'N', 'R', "cm.Email", 19, 1},
      {"usercityid = 1, ICGroupID = 55", 'M', 'N', 'A', "cm.FullName", 1, 0},
      {"usercityid = 999999, ICGroupID = null", 'M', 'N', 'A', "cm.FullName", 19, 0},
  };
  for (const auto& c : cases) {
    TestHome home;
    ASSERT_TRUE(home.Start());
    Change(home, (std::string("Update settings set ") + c.change).c_str());
    const auto session = home.Start();
    ASSERT_TRUE(session) << c.change;
    const ApplicationState& state = session->State;
    EXPECT_EQ(state.RahuKetuCalculation, c.node) << c.change;
    EXPECT_EQ(state.DefaultChartType, c.chart) << c.change;
    EXPECT_EQ(state.StatusBarDegreeCalc, c.degree) << c.change;
    EXPECT_EQ(state.SortColumn, c.sort) << c.change;
    EXPECT_EQ(state.UserCityId, c.cityId) << c.change;
    EXPECT_EQ(state.InstantChartGroupId, c.groupId) << c.change;
    EXPECT_EQ(state.InstantChartGroupName.empty(), c.groupId == 0) << c.change;
  }
}

TEST(Startup, OrbsMakeTheBands) {
  TestHome home;
  ASSERT_TRUE(home.Start());
  Change(home, "Update settings set Orbit_30 = 0, Orbit_180 = 10");
  const auto session = home.Start();
  ASSERT_TRUE(session);
  EXPECT_EQ(session->State.AspectBands[0].Low, 30);
  EXPECT_EQ(session->State.AspectBands[0].High, 30);
  EXPECT_EQ(session->State.AspectBands[7].Low, 170);
  EXPECT_EQ(session->State.Orbs[7], 10);
}

TEST(MachineSettings, TellWhatIsWrongInTheProgramsWords) {
  const test::TempFolder folder;
  const MachineSettings settings(folder.Path() / "config" / "machine.json");
  settings.SaveMachineSetting(" Orvex 3.0 ", "Settings", "InstallFolder", "/home/a \"b\"");
  EXPECT_EQ(settings.ReadMachineSetting("Orvex 3.0", " Settings", "InstallFolder", ""),
            "/home/a \"b\"");
  EXPECT_EQ(settings.ReadMachineSetting("Orvex 3.0", "Settings", "Missing", "default"), "default");
  EXPECT_EQ(settings.ReadMachineSetting("Other", "Settings", "Missing", "default"), "default");

  const auto messageOf = [](auto action) {
    try {
      action();
    } catch (const MachineSettingError& error) {
      return std::string(error.what());
    }
    return std::string("no error");
  };
  const MachineSettings broken(folder.Path() / "broken");
  std::ofstream(folder.Path() / "broken") << "{ not json";
  const MachineSettings number(folder.Path() / "number");
  std::ofstream(folder.Path() / "number") << R"({"a": {"b": {"c": 5}}})";
  const MachineSettings nowhere(std::filesystem::path("/proc/nowhere/x"));
  EXPECT_EQ(messageOf([&] { settings.SaveMachineSetting(" ", "b", "c", ""); }),
            "AppName may not be empty");
  EXPECT_EQ(messageOf([&] { settings.ReadMachineSetting("a", "", "c", ""); }),
            "Section may not be empty");
  EXPECT_EQ(messageOf([&] { settings.SaveMachineSetting("a", "b", " ", ""); }),
            "Key may not be empty");
  EXPECT_EQ(messageOf([&] { broken.ReadMachineSetting("a", "b", "c", ""); }),
            "Could not open registry section");
  EXPECT_EQ(messageOf([&] { broken.SaveMachineSetting("a", "b", "c", ""); }),
            "Could not open/create registry section");
  EXPECT_EQ(messageOf([&] { nowhere.SaveMachineSetting("a", "b", "c", ""); }),
            "Could not open/create registry section");
  EXPECT_EQ(messageOf([&] { number.ReadMachineSetting("a", "b", "c", ""); }),
            "Registry data not a string");

  // What a power cut can leave holds nothing and stops no start.
  const MachineSettings empty(folder.Path() / "empty");
  std::ofstream(folder.Path() / "empty").flush();
  EXPECT_EQ(empty.ReadMachineSetting("a", "b", "c", "fallback"), "fallback");
  EXPECT_EQ(messageOf([&] { empty.SaveMachineSetting("a", "b", "c", ""); }), "no error");
}

TEST(MachineSettings, ProgramsOfSeveralHomesWriteAtOnceAndLoseNothing) {
  constexpr int kWriters = 8;
  constexpr int kKeys = 20;
  const test::TempFolder folder;
  const std::filesystem::path file = folder.Path() / "config" / "machine.json";
  std::atomic<int> failures = 0;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([&file, &failures, writer] {
      try {
        for (int key = 0; key < kKeys; ++key) {
          MachineSettings(file).SaveMachineSetting("App", WholeText(writer), WholeText(key),
                                                   "kept");
        }
      } catch (const std::exception&) {
        ++failures;
      }
    });
  }
  for (std::thread& writer : writers) {
    writer.join();
  }
  EXPECT_EQ(failures, 0);
  const MachineSettings settings(file);
  for (int writer = 0; writer < kWriters; ++writer) {
    for (int key = 0; key < kKeys; ++key) {
      EXPECT_EQ(settings.ReadMachineSetting("App", WholeText(writer), WholeText(key), ""), "kept");
    }
  }
}

TEST(MachineSettings, AStartWritesFolderAndVersion) {
  TestHome home;
  ASSERT_TRUE(home.Start());
  const MachineSettings settings(home.Plan().MachineSettingsFile);
  EXPECT_EQ(settings.ReadMachineSetting("Orvex 3.0", "Settings", "InstallFolder", ""),
            home.Place.Folder.string());
  EXPECT_EQ(settings.ReadMachineSetting("Orvex 3.0", "Settings", "CurrentVersion", ""),
            ProgramVersion());
}

}  // namespace
}  // namespace orvex::core
