#include "core/backup.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "core/csv.h"
#include "core/text.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

namespace fs = std::filesystem;

class Backup : public testing::Test {
 protected:
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(home_.Place.DataFolder() / "Backups")) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  std::string RestoreFault(const fs::path& file) {
    try {
      RestoreStore(home_.Place, file, home_.Clock);
      return "";
    } catch (const std::runtime_error& error) {
      return error.what();
    }
  }

  std::vector<std::string> FilesWith(const std::string& part) const {
    std::vector<std::string> names = Files();
    std::erase_if(names, [&part](const std::string& name) { return !Contains(name, part); });
    return names;
  }

  fs::path Folder() const { return home_.Place.DataFolder() / "Backups"; }

  std::string FirstGroup() {
    const auto session = home_.Start();
    return session->StoreConnection.Query("Select groupname from group_master").Text("groupname");
  }

  test::TestHome home_;
};

TEST_F(Backup, AWriterMakesOneADayAndTheLast14AreKept) {
  home_.Start(StartMode::Reader);
  EXPECT_FALSE(fs::exists(home_.Place.DataFolder() / "Backups"));
  home_.Start();
  home_.Start();
  EXPECT_EQ(Files().size(), 1U);
  for (int day = 1; day <= 15; ++day) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::hours(24));
    home_.Start();
  }
  const std::vector<std::string> kept = Files();
  ASSERT_EQ(kept.size(), 14U);
  EXPECT_EQ(kept.front(), "ORVD-2026-11-26-100000.mdb");
  EXPECT_EQ(kept.back(), "ORVD-2026-12-09-100000.mdb");
  const fs::path folder = home_.Place.DataFolder() / "Backups";
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(folder / kept.back()).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Backup, ARestoreBringsTheCopyBackAndKeepsWhatStoodThere) {
  fs::path copy;
  {
    const auto session = home_.Start();
    copy = BackUpStore(home_.Place, session->StoreConnection, home_.Clock, BackupKind::ByHand);
    session->StoreConnection.Execute("Update group_master set groupname = 'Later'");
  }
  const std::size_t before = Files().size();
  EXPECT_EQ(RestoreFault(copy), "");
  EXPECT_EQ(FirstGroup(), "General");
  EXPECT_EQ(Files().size(), before + 1);
  EXPECT_EQ(RestoreFault(Folder() / FilesWith("before-restore").back()), "");
  EXPECT_EQ(FirstGroup(), "Later");
}

TEST_F(Backup, AFileThatIsNoWholeStoreChangesNothing) {
  const fs::path file = home_.Place.Folder / "candidate";
  const std::string store = test::ReadFile(test::TemplateStore());
  std::string later = store;
  later[63] = 99;  // the schema's number
  std::string torn = store;
  std::fill(torn.begin() + 40960, torn.begin() + 81920, '\x5A');
  const std::pair<std::string, const char*> cases[] = {
      {"text", "The file is no database of Orvex+; nothing was changed."},
      {later, "The file was written by a later release of Orvex+; nothing was changed."},
      {store.substr(0, store.size() / 2), "The file is damaged; nothing was changed."},
      {torn, "The file is damaged; nothing was changed."}};
  for (const auto& [content, text] : cases) {
    WriteFileSafely(file, content);
    EXPECT_EQ(RestoreFault(file), text);
    EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), store);
  }
  EXPECT_EQ(RestoreFault("/nowhere"), "There is no such file; nothing was changed.");
  EXPECT_FALSE(fs::exists(home_.Place.StoreFile().string() + ".restored"));
}

TEST_F(Backup, AStoreThatCanNotBeReadIsReplacedAndKept) {
  WriteFileSafely(home_.Place.StoreFile(), "broken");
  EXPECT_EQ(RestoreFault(test::TemplateStore()), "");
  EXPECT_EQ(FirstGroup(), "General");
  EXPECT_EQ(Files().back().substr(0, 11), "unreadable-");
}

TEST_F(Backup, CopiesOfAClockThatRanAheadPushOutNoneOfToday) {
  const auto startDaily = [this](const char* from, int days) {
    home_.Clock.Set(test::Moment(from));
    for (int day = 0; day < days; ++day) {
      home_.Start();
      home_.Clock.Set(home_.Clock.Now() + std::chrono::hours(24));
    }
  };
  startDaily("2030-01-01 10:00", 16);
  startDaily("2026-11-24 10:00", 16);
  const std::vector<std::string> now = FilesWith("ORVD-2026");
  ASSERT_EQ(now.size(), 14U);
  EXPECT_EQ(now.front(), "ORVD-2026-11-26-100000.mdb");
  EXPECT_EQ(now.back(), "ORVD-2026-12-09-100000.mdb");
  EXPECT_EQ(FilesWith("ORVD-2030").size(), 14U);
  // The newest of now is offered, not that of a day to come.
  EXPECT_EQ(NewestBackup(home_.Place, home_.Clock)->filename(), now.back());
}

TEST_F(Backup, ManyCopiesOfOneKindPushOutNoneOfAnother) {
  const auto session = home_.Start();
  for (const BackupKind kind : {BackupKind::BeforeDeletion, BackupKind::ByHand}) {
    for (int i = 0; i < 17; ++i) {
      BackUpStore(home_.Place, session->StoreConnection, home_.Clock, kind);
    }
  }
  EXPECT_EQ(FilesWith("100000.mdb").size(), 1U);
  EXPECT_EQ(FilesWith("before-deletion").size(), kBackupsKept);
  EXPECT_EQ(FilesWith("before-deletion").back(), "ORVD-2026-11-24-100000_017-before-deletion.mdb");
  EXPECT_EQ(FilesWith("by-hand").size(), kBackupsKept);
  // A copy before a deletion is not the daily one.
  home_.Clock.Set(home_.Clock.Now() + std::chrono::hours(24));
  BackUpStore(home_.Place, session->StoreConnection, home_.Clock, BackupKind::BeforeDeletion);
  BackUpStoreDaily(home_.Place, session->StoreConnection, home_.Clock);
  EXPECT_EQ(FilesWith("100000.mdb").size(), 2U);
}

TEST_F(Backup, ARestoreKeepsTheFileThatItRestores) {
  {
    const auto session = home_.Start();
    for (std::size_t i = 0; i < kBackupsKept; ++i) {
      BackUpStore(home_.Place, session->StoreConnection, home_.Clock, BackupKind::BeforeRestore);
    }
  }
  const fs::path oldest = Folder() / FilesWith("before-restore").front();
  EXPECT_EQ(RestoreFault(oldest), "");
  EXPECT_TRUE(fs::exists(oldest));
}

TEST_F(Backup, AJournalWithoutItsStoreIsKeptAndNotReadIntoTheRestoredOne) {
  const fs::path journal = home_.Place.StoreFile().string() + "-journal";
  fs::remove(home_.Place.StoreFile());
  WriteFileSafely(journal, "of the lost store");
  EXPECT_EQ(RestoreFault(test::TemplateStore()), "");
  EXPECT_FALSE(fs::exists(journal));
  ASSERT_EQ(FilesWith("unreadable-").size(), 1U);
  EXPECT_EQ(test::ReadFile(Folder() / FilesWith("unreadable-").front()), "of the lost store");
}

TEST_F(Backup, AStoreBehindALinkStaysThere) {
  const fs::path store = home_.Place.StoreFile();
  const fs::path there = home_.Place.Folder / "elsewhere.mdb";
  fs::rename(store, there);
  fs::create_symlink("../elsewhere.mdb", store);
  {
    const auto session = home_.Start();
    session->StoreConnection.Execute("Update group_master set groupname = 'Later'");
  }
  EXPECT_EQ(RestoreFault(test::TemplateStore()), "");
  EXPECT_TRUE(fs::is_symlink(store));
  EXPECT_EQ(test::ReadFile(there), test::ReadFile(test::TemplateStore()));
  EXPECT_EQ(FilesWith("before-restore").size(), 1U);
}

// A disk that is full when the present store is copied, as a limit on the size of files.
TEST_F(Backup, ARestoreStopsWhereThePresentStoreCanNotBeCopied) {
  const fs::path small = test::TemplateStore();
  {
    Store store = Store::Open(home_.Place.StoreFile());
    store.Execute("Update group_master set groupname = " + Quoted(std::string(4'000'000, 'x')));
  }
  const std::string before = test::ReadFile(home_.Place.StoreFile());
  const std::string told = home_.Place.Folder / "told";
  const pid_t child = ::fork();
  if (child == 0) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{fs::file_size(small) + 8192, fs::file_size(small) + 8192};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    WriteFileSafely(told, RestoreFault(small));
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(test::ReadFile(told).substr(0, 42), "The present database could not be copied (");
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), before);
  EXPECT_TRUE(Files().empty());
  EXPECT_FALSE(fs::exists(home_.Place.StoreFile().string() + ".restored"));
}

TEST(Csv, WhatIsWrittenIsReadAgainWhateverItHolds) {
  const std::vector<std::vector<std::string>> rows = {{"a", "", "c"},
                                                      {"", "", ""},
                                                      {"x,y;z", "say \"so\"\r\nand\n\nso", "\""},
                                                      {
                                                          "=1+1",
                                                          "'",
                                                          "''=",
                                                      },
                                                      {"-5", "+9", "\tx"}};
  for (const auto& row : rows) {
    std::vector<std::string> guarded;
    for (const std::string& field : row) {
      guarded.push_back(GuardedText(field));
      EXPECT_EQ(UnguardedText(guarded.back()), field);
      EXPECT_EQ(std::string("=+-@\t").find(guarded.back().substr(0, 1)) != std::string::npos &&
                    !guarded.back().empty(),
                false);
    }
    EXPECT_EQ(ReadCsv(CsvLine(guarded)).at(0).Fields, guarded);
  }
}

TEST(Csv, FilesOfSpreadsheetsAreRead) {
  const auto records = ReadCsv(
      "\xEF\xBB\xBF"
      "a;b,c;d\r\n\r\n\"1\r\n;\";2;\r\nlast;;\"\"");
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0].Fields, (std::vector<std::string>{"a", "b,c", "d"}));
  EXPECT_EQ(records[1].Fields, (std::vector<std::string>{"1\r\n;", "2", ""}));
  EXPECT_EQ(records[1].Line, 3U);
  EXPECT_EQ(records[2].Line, 5U);
  EXPECT_THROW(ReadCsv("a,b\n\"open,1\n"), CsvError);
}

}  // namespace
}  // namespace orvex::core
