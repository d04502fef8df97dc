#include "core/backup.h"

#include <gtest/gtest.h>

#include "core/csv.h"
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
    copy = BackUpStore(home_.Place, session->StoreConnection, home_.Clock);
    session->StoreConnection.Execute("Update group_master set groupname = 'Later'");
  }
  const std::size_t before = Files().size();
  EXPECT_EQ(RestoreFault(copy), "");
  EXPECT_EQ(FirstGroup(), "General");
  EXPECT_EQ(Files().size(), before + 1);
  EXPECT_EQ(RestoreFault(home_.Place.DataFolder() / "Backups" / Files().back()), "");
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
