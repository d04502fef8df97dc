// What a store, its copies and its neighbours must survive: a clock put back, a copy that others
// may read, a refused restore, a second program, a start that breaks off.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <fstream>
#include <thread>

#include "core/backup.h"
#include "core/csv.h"
#include "core/settings.h"
#include "core/staged_files.h"
#include "core/text.h"
#include "support/data_folder.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

namespace fs = std::filesystem;
using std::chrono_literals::operator""ms;

constexpr auto kOwnerOnly = fs::perms::owner_read | fs::perms::owner_write;

class StoreKept : public testing::Test {
 protected:
  fs::path Backups() const { return home_.Place.DataFolder() / "Backups"; }

  std::size_t BackupCount() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(Backups()), fs::directory_iterator()));
  }

  // A copy of a whole store, somewhere else, with the rights that a stick gives.
  fs::path CopyForAll() const {
    fs::path copy = home_.Place.Folder / "from-the-stick.mdb";
    fs::copy_file(test::TemplateStore(), copy, fs::copy_options::overwrite_existing);
    fs::permissions(copy, fs::perms::owner_all | fs::perms::group_read | fs::perms::others_read);
    return copy;
  }

  test::TestHome home_;
};

TEST_F(StoreKept, ABackupMadeWithTheClockPutBackIsNotTheFirstToGo) {
  const Store store = Store::Open(home_.Place.StoreFile());
  for (std::size_t i = 0; i < kBackupsKept; ++i) {
    BackUpStore(home_.Place, store, home_.Clock, BackupKind::Daily);
  }
  home_.Clock.Set(home_.Clock.Now() - std::chrono::days(400));
  const fs::path made = BackUpStore(home_.Place, store, home_.Clock, BackupKind::Daily);
  EXPECT_TRUE(fs::exists(made));
  EXPECT_EQ(BackupCount(), kBackupsKept + 1);  // copies of later days are counted apart
}

TEST_F(StoreKept, ARestoredStoreIsTheOwnersAlone) {
  RestoreStore(home_.Place, CopyForAll(), home_.Clock);
  EXPECT_EQ(fs::status(home_.Place.StoreFile()).permissions(), kOwnerOnly);
}

TEST_F(StoreKept, TheJournalOfABrokenStoreGoesWithItAndNotIntoTheRestoredOne) {
  const fs::path journal = home_.Place.StoreFile().string() + "-journal";
  WriteFileSafely(home_.Place.StoreFile(), "broken");
  WriteFileSafely(journal, "journal of the broken one");
  RestoreStore(home_.Place, CopyForAll(), home_.Clock);
  EXPECT_FALSE(fs::exists(journal));
  std::size_t kept = 0;
  for (const auto& entry : fs::directory_iterator(Backups())) {
    const std::string text = test::ReadFile(entry.path());
    kept += text == "broken" || text == "journal of the broken one" ? 1U : 0U;
  }
  EXPECT_EQ(kept, 2U);
}

TEST_F(StoreKept, ARefusedRestoreLeavesAnUnreadableStoreInItsPlace) {
  WriteFileSafely(home_.Place.StoreFile(), "unreadable");
  const fs::path candidate = home_.Place.Folder / "candidate";
  WriteFileSafely(candidate, "no store either");
  EXPECT_THROW(RestoreStore(home_.Place, candidate, home_.Clock), std::runtime_error);
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), "unreadable");
  EXPECT_EQ(BackupCount(), 0U);
}

TEST_F(StoreKept, ADailyCopyThatFailsIsToldAndTheStartGoesOn) {
  WriteFileSafely(Backups(), "in the way");
  EXPECT_TRUE(home_.Start());
  ASSERT_EQ(home_.Messages.All().size(), 1U);
  EXPECT_TRUE(Contains(home_.Messages.All()[0].Text, "The daily copy of the database"));
  EXPECT_TRUE(home_.Start(StartMode::Reader));
  EXPECT_EQ(home_.Messages.All().size(), 1U);
}

TEST_F(StoreKept, AStoreThatMayNotBeWrittenIsToldAsSuch) {
  fs::permissions(home_.Place.StoreFile(), fs::perms::owner_read);
  EXPECT_FALSE(home_.Start());
  EXPECT_TRUE(Contains(home_.Messages.All().at(0).Text, "may not be written"));
  EXPECT_TRUE(Contains(home_.Messages.All().at(0).Text, "ORVD.mdb"));
}

TEST_F(StoreKept, ANewStoreKeepsTheReportTemplateThatIsThere) {
  fs::remove(home_.Place.StoreFile());
  WriteFileSafely(home_.Place.ReportTemplate(), "my own");
  ASSERT_TRUE(home_.Start());
  EXPECT_EQ(test::ReadFile(home_.Place.ReportTemplate()), "my own");
}

TEST_F(StoreKept, AStoreThatCouldNotBeMadeIsNotThereAndIsMadeTheNextTime) {
  const fs::path data = home_.Place.Folder / "shipped";
  fs::copy(test::DataFolder(), data, fs::copy_options::recursive);
  fs::remove(data / "zodiac_master.tsv");
  const fs::path file = home_.Place.Folder / "new.mdb";
  EXPECT_THROW(CreateStore(file, data), std::exception);
  EXPECT_FALSE(fs::exists(file));
  WriteFileSafely(file.string() + ".new", "left by a crash");
  WriteFileSafely(file.string() + ".new-journal", "left by a crash");
  fs::copy_file(test::DataFolder() / "zodiac_master.tsv", data / "zodiac_master.tsv");
  std::ofstream(data / "city_master.tsv", std::ios::trunc)
      << "cityname\ttimezone\tlatitude\tlongitude\tregion\tothernames\n"
      << "Mumbai\tAsia/Kolkata\t19\t72\t\t\n";
  CreateStore(file, data);
  const Store store = Store::Open(file);
  EXPECT_EQ(store.Query("Select count(*) as n from ascendants").Integer("n"), 249);
  EXPECT_EQ(store.Query("Select offset from city_master").Text("offset"), "5.5");
  EXPECT_EQ(fs::status(file).permissions(), kOwnerOnly);
}

TEST_F(StoreKept, TheLockFileIsTheOwnersAlone) {
  const mode_t before = ::umask(0);
  const auto lock = FileLock::Acquire(home_.Place.LockFile(), 0ms);
  WriteFileSafely(home_.Place.Folder / "file", "content");
  MakePrivateFolders(home_.Place.Folder / "a" / "b");
  ::umask(before);
  EXPECT_TRUE(lock);
  EXPECT_EQ(fs::status(home_.Place.LockFile()).permissions(), kOwnerOnly);
  EXPECT_EQ(fs::status(home_.Place.Folder / "file").permissions(), kOwnerOnly);
  EXPECT_EQ(fs::status(home_.Place.Folder / "a").permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(home_.Place.Folder / "a" / "b").permissions(), fs::perms::owner_all);
}

// Lets go of what it holds after a while, as a command does that ends.
template <typename Held>
std::thread LetGoLater(Held& held, std::atomic<bool>& gone) {
  return std::thread([&held, &gone] {
    std::this_thread::sleep_for(250ms);
    gone = true;
    held.reset();
  });
}

TEST_F(StoreKept, ACommandWaitsForAnotherOneThatIsEnding) {
  auto first = FileLock::Acquire(home_.Place.LockFile(), 0ms);
  ASSERT_TRUE(first);
  std::atomic<bool> gone = false;
  std::thread ending = LetGoLater(first, gone);
  EXPECT_TRUE(home_.Start(StartMode::Writer));
  EXPECT_TRUE(gone);
  ending.join();
}

TEST_F(StoreKept, ASecondConnectionWaitsWhileTheFirstWrites) {
  Store writing = Store::Open(home_.Place.StoreFile());
  Store waiting = Store::Open(home_.Place.StoreFile());
  auto batch = std::make_unique<Batch>(writing);
  writing.Execute("Update group_master set groupname = 'First'");
  std::atomic<bool> gone = false;
  std::thread ending = LetGoLater(batch, gone);
  EXPECT_NO_THROW(waiting.Execute("Update group_master set groupname = 'Second'"));
  EXPECT_TRUE(gone);
  ending.join();
}

TEST_F(StoreKept, FilesTakeTheirPlacesTogetherAndAnOldOneIsNeverWrittenInto) {
  const fs::path folder = home_.Place.Folder;
  const fs::path report = folder / "report.html";
  const fs::path otherName = folder / "other name of the old one";
  WriteFileSafely(report, "old");
  fs::create_hard_link(report, otherName);
  const auto files = [&folder] {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
  };
  const auto before = files();
  {
    StagedFiles staged;
    staged.Add(report, "new");
    staged.Add(folder / "picture.png", "picture");
    EXPECT_EQ(test::ReadFile(report), "old");
    EXPECT_FALSE(fs::exists(folder / "picture.png"));
  }
  EXPECT_EQ(files(), before);
  StagedFiles staged;
  staged.Add(report, "new");
  staged.Commit();
  EXPECT_EQ(test::ReadFile(report), "new");
  EXPECT_EQ(test::ReadFile(otherName), "old");
  EXPECT_EQ(files(), before);
  EXPECT_THROW(staged.Add(folder / "Data", "a folder is in the way"), std::runtime_error);
}

// One environment variable for as long as the test lasts.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) { ::setenv(name, value, 1); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { ::unsetenv(name_); }

 private:
  const char* name_;
};

TEST(HomeFolder, TheOptionGoesBeforeTheVariableAndThatBeforeTheUsersFolder) {
  const Variable data("XDG_DATA_HOME", "/data/of/user");
  EXPECT_EQ(HomeFolder(""), "/data/of/user/orvex");
  const Variable home("ORVEX_HOME", "/told/by/variable");
  EXPECT_EQ(HomeFolder(""), "/told/by/variable");
  EXPECT_EQ(HomeFolder("/told"), "/told");
  EXPECT_EQ(UserDataFolder(), "/data/of/user");
}

TEST(Csv, EachBeginOfAFormulaIsGuarded) {
  for (const char* text : {"=1", "+1", "-1", "@SUM(A1)", "\t=1", "\r=1"}) {
    EXPECT_EQ(GuardedText(text), std::string("'") + text);
    EXPECT_EQ(UnguardedText(GuardedText(text)), text);
  }
  for (const char* text : {"", "name", "a=b", " =1", "'", "1+1", "it's"}) {
    EXPECT_EQ(GuardedText(text), text);
  }
}

TEST(Csv, AFieldIsQuotedWhereItMustBeAndTheCommonerMarkSeparates) {
  EXPECT_EQ(CsvLine({"", "a,b", "c;d", "\"", "x\ny", "plain text"}),
            ",\"a,b\",\"c;d\",\"\"\"\",\"x\ny\",plain text\n");
  EXPECT_EQ(ReadCsv("a,b;c\n1,2;3\n").at(1).Fields, (std::vector<std::string>{"1", "2;3"}));
  EXPECT_EQ(ReadCsv("a;b;c,d\n").at(0).Fields.size(), 3U);
}

TEST_F(StoreKept, LimitsCountCharactersAndNotBytes) {
  const auto letters = [](std::size_t count) {
    return Join(std::vector<std::string>(count, "\u0905"), "");
  };
  const auto session = home_.Start();
  SettingsForm form = OpenSettings(*session);
  form.AstrologerName = letters(50);
  form.AstrologerOrganization = letters(50);
  form.AstrologerContactDetails = letters(250);
  ASSERT_FALSE(SaveSettings(*session, form).Refused);
  EXPECT_EQ(session->State.AstrologerName, letters(50));
  EXPECT_EQ(session->State.AstrologerOrganization, letters(50));
  EXPECT_EQ(session->State.AstrologerContactDetails, letters(250));
  form.AstrologerName = letters(51);
  EXPECT_TRUE(SaveSettings(*session, form).Refused);
}

}  // namespace
}  // namespace orvex::core
