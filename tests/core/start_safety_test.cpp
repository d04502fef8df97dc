// What a start does with a home that something went wrong with.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

#include "core/backup.h"
#include "core/text.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

namespace fs = std::filesystem;
using test::TestHome;

std::vector<fs::path> FilesOf(const fs::path& folder, const std::string& part) {
  std::vector<fs::path> found;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(folder, none)) {
    if (Contains(entry.path().filename().string(), part)) {
      found.push_back(entry.path());
    }
  }
  return found;
}

class StartSafety : public testing::Test {
 protected:
  fs::path Backups() const { return home_.Place.DataFolder() / "Backups"; }

  // A copy of the store with a group named as told.
  fs::path CopyNamed(const char* moment, const char* group) {
    home_.Clock.Set(test::Moment(moment));
    Store store = Store::Open(home_.Place.StoreFile());
    store.Execute(std::string("Update group_master set groupname = '") + group + "'");
    return BackUpStore(home_.Place, store, home_.Clock, BackupKind::BeforeDeletion);
  }

  std::string Told(std::size_t at = 0) const {
    return at < home_.Messages.All().size() ? home_.Messages.All()[at].Text : "";
  }

  TestHome home_;
};

TEST_F(StartSafety, AHomeThatLostItsStoreOffersTheNewestCopyAndBeginsNoEmptyOne) {
  CopyNamed("2026-11-20 10:00", "Old");
  CopyNamed("2031-01-01 10:00", "Ahead");
  const fs::path newest = CopyNamed("2026-11-23 10:00", "Newest");
  home_.Clock.Set(test::Moment("2026-11-24 10:00"));
  fs::remove(home_.Place.StoreFile());

  for (const StartMode command : {StartMode::Writer, StartMode::Reader}) {
    EXPECT_FALSE(home_.Start(command));
  }
  ASSERT_EQ(home_.Messages.All().size(), 2U);
  EXPECT_NE(Told(1).find("restore \"" + newest.string() + "\""), std::string::npos) << Told(1);

  EXPECT_FALSE(home_.Start(StartMode::Owner));
  EXPECT_EQ(home_.Messages.All()[2].Buttons, MessageButtons::YesNo);
  EXPECT_NE(Told(2).find(newest.string()), std::string::npos);
  EXPECT_FALSE(fs::exists(home_.Place.StoreFile()));

  RecordedMessages yes(MessageAnswer::Yes);
  const auto session = RunStartup(home_.Plan(StartMode::Owner), home_.Clock, yes, home_.Ephemeris);
  ASSERT_TRUE(session);
  EXPECT_EQ(session->StoreConnection.Query("Select groupname from group_master").Text("groupname"),
            "Newest");
}

TEST_F(StartSafety, AStoreOutOfReachIsNotBegunAnew) {
  fs::remove(home_.Place.StoreFile());
  fs::create_symlink(home_.Place.Folder / "not mounted" / "ORVD.mdb", home_.Place.StoreFile());
  EXPECT_FALSE(home_.Start());
  EXPECT_NE(Told().find("could not find the database"), std::string::npos);
  EXPECT_TRUE(fs::is_symlink(home_.Place.StoreFile()));
}

TEST_F(StartSafety, AnOldStoreIsCopiedAsItWasBeforeItIsUpgraded) {
  const auto becomesOld = [this] {
    Store store = Store::Open(home_.Place.StoreFile());
    store.ExecuteScript("alter table settings drop column Orbit_30; pragma user_version = 0");
  };
  EXPECT_TRUE(home_.Start());
  EXPECT_TRUE(FilesOf(Backups(), "before-upgrade").empty());
  becomesOld();
  EXPECT_TRUE(home_.Start(StartMode::Reader));  // whoever upgrades copies
  const std::vector<fs::path> copies = FilesOf(Backups(), "before-upgrade");
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_THROW(Store::Open(copies[0]).Query("Select Orbit_30 from settings"), StoreError);

  // Where it can't be copied it stays as it is.
  becomesOld();
  fs::remove_all(Backups());
  WriteFileSafely(Backups(), "in the way");
  EXPECT_FALSE(home_.Start(StartMode::Reader));
  EXPECT_NE(Told().find("nothing was changed"), std::string::npos);
  EXPECT_THROW(Store::Open(home_.Place.StoreFile()).Query("Select Orbit_30 from settings"),
               StoreError);
}

TEST_F(StartSafety, WhatABackupOrARestoreThatBrokeOffLeftIsRemoved) {
  const std::string store = home_.Place.StoreFile().string();
  const std::string copy = (Backups() / "ORVD-2026-11-01-100000.mdb").string();
  MakePrivateFolders(Backups());
  const std::string halves[] = {copy + ".new", copy + ".new-journal", store + ".restored",
                                store + ".restored-journal", store + ".new"};
  for (const std::string& half : halves) {
    std::ofstream(half) << "half";
  }
  std::ofstream(copy) << "whole";
  EXPECT_TRUE(home_.Start(StartMode::Reader));
  for (const std::string& half : halves) {
    EXPECT_FALSE(fs::exists(half)) << half;
  }
  EXPECT_TRUE(fs::exists(copy));
}

TEST_F(StartSafety, ASettingsFileThatCanNotBeUsedIsToldOnceAndPassedOver) {
  StartupPlan plan = home_.Plan();
  const fs::path damaged = home_.Place.Folder / "damaged.json";
  std::ofstream(damaged) << "{ no";
  const fs::path number = home_.Place.Folder / "number.json";
  std::ofstream(number) << R"({"Orvex 3.0": {"Settings": {"InstallFolder": 5}}})";
  for (const fs::path& file :
       {damaged, number, home_.Place.DataFolder(), fs::path("/proc/nowhere/x.json"), fs::path()}) {
    RecordedMessages messages;
    plan.MachineSettingsFile = file;
    EXPECT_TRUE(RunStartup(plan, home_.Clock, messages, home_.Ephemeris)) << file;
    ASSERT_EQ(messages.All().size(), 1U) << file;
    EXPECT_NE(messages.All()[0].Text.find("passed over"), std::string::npos);
  }
}

TEST(HomeFolder, AUserWithoutAnyIsToldWhatIsNeeded) {
  const auto kept = [](const char* name) {
    const char* value = std::getenv(name);
    return std::pair(name, value == nullptr ? std::string() : value);
  };
  const auto before = {kept("HOME"), kept("XDG_DATA_HOME"), kept("ORVEX_HOME")};
  for (const auto& [name, value] : before) {
    ::unsetenv(name);
  }
  EXPECT_THROW(HomeFolder(""), std::runtime_error);
  EXPECT_EQ(HomeFolder("/option"), "/option");
  for (const auto& [name, value] : before) {
    if (!value.empty()) {
      ::setenv(name, value.c_str(), 1);
    }
  }
}

}  // namespace
}  // namespace orvex::core
