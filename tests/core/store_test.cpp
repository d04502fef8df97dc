#include "core/store.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/text.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

using test::ReadFile;

class StoreTest : public testing::Test {
 protected:
  Store Open() const { return Store::Open(home_.Place.StoreFile()); }
  test::TestHome home_;
};

StoreFault FaultOf(const std::filesystem::path& file) {
  try {
    Store::Open(file);
  } catch (const StoreError& error) {
    return error.Fault();
  }
  ADD_FAILURE() << file << " was opened";
  return StoreFault::Statement;
}

TEST_F(StoreTest, AReadingStatementCanNeitherWriteNorBringASecondOne) {
  const Store store = Open();
  for (const char* statement :
       {"Delete from group_master", "Insert into group_master (groupname) values ('x')",
        "Select id from group_master; Delete from group_master", "Drop table settings",
        "Update settings set usercityid = 1", "Attach database '/tmp/other.db' as other",
        "Select id from group_master where groupname = 'x' ; Select 1", "", ";", "nonsense",
        "Select * from no_such_table", "Select #1/1/2000"}) {
    EXPECT_THROW(store.Query(statement), StoreError) << statement;
  }
  EXPECT_EQ(store.Query("Select count(*) as n from group_master").Integer("n"), 1);
  EXPECT_NO_THROW(store.Query("Select date() ; "));
}

TEST_F(StoreTest, AQuoteTypedIntoASearchDoesNothingButFail) {
  const Store store = Open();
  const std::string typed = "x%'; Delete from group_master; --";
  EXPECT_THROW(store.Query("Select id from group_master where groupname like '%" + typed + "%'"),
               StoreError);
  EXPECT_EQ(store.Query("Select count(*) as n from group_master").Integer("n"), 1);
}

TEST_F(StoreTest, FieldsAreReadByNameInAnyCaseAndByTheirKind) {
  Store store = Open();
  store.Execute("Update group_master set groupname = 'It''s 5 #1/1/2000#'");
  const Result row = store.Query(
      "Select groupname, 5.50 as Price, 320.0 as Whole, null as Absent, 0 as No, -1 as Yes, "
      "#7/5/1990 2:30 PM# as Moment, day(#07/05/1990#) as d, month(#07/05/1990#) as m, "
      "year(#07/05/1990#) as y, ucase('abc') as u, day('nonsense') as bad from group_master");
  EXPECT_EQ(row.Text("GROUPNAME"), "It's 5 #1/1/2000#");
  EXPECT_EQ(row.Text("price"), "5.5");
  EXPECT_EQ(row.Text("whole"), "320");
  EXPECT_EQ(row.Text("absent"), "");
  EXPECT_TRUE(row.IsNull("absent"));
  EXPECT_FALSE(row.Flag("no"));
  EXPECT_TRUE(row.Flag("yes"));
  EXPECT_EQ(StoredDateTimeText(row.Moment("moment").value()), "1990-07-05 14:30:00");
  EXPECT_EQ(row.Text("d") + row.Text("m") + row.Text("y") + row.Text("u"), "571990ABC");
  EXPECT_TRUE(row.IsNull("bad"));
  EXPECT_THROW(row.Text("no_such_field"), StoreError);
}

TEST_F(StoreTest, AForwardResultEndsAndIsNotReadBeyond) {
  const Store store = Open();
  Result row = store.Query("Select id from planet_master where id <= 2 order by id");
  EXPECT_EQ(row.Text("id"), "1");
  row.Next();
  EXPECT_EQ(row.Text("id"), "2");
  row.Next();
  EXPECT_TRUE(row.AtEnd());
  row.Next();
  EXPECT_TRUE(row.AtEnd());
  EXPECT_THROW(row.Text("id"), StoreError);
}

TEST_F(StoreTest, AFailedStatementInABatchLeavesWhatWasWrittenBefore) {
  {
    Store store = Open();
    try {
      Batch batch(store);
      store.Execute("Insert into group_master (groupname) values ('before')");
      store.Execute("Insert into group_master (no_such_column) values (1)");
      batch.Commit();
      ADD_FAILURE() << "the second statement passed";
    } catch (const StoreError& error) {
      EXPECT_EQ(error.Fault(), StoreFault::Statement);
    }
  }
  EXPECT_EQ(Open()
                .Query("Select count(*) as n from group_master where groupname = 'before'")
                .Integer("n"),
            1);
}

TEST_F(StoreTest, LargeTextsComeBackUnchanged) {
  Store store = Open();
  const std::string large(10'000'000, '\'');
  store.Execute("Update group_master set groupname = " + Quoted(large));
  EXPECT_EQ(store.Query("Select groupname from group_master").Text("groupname"), large);
}

TEST_F(StoreTest, WhatIsNoStoreOfThisProgramIsRefusedAndLeftAsItIs) {
  const std::filesystem::path file = home_.Place.StoreFile();
  const std::string whole = ReadFile(file);
  const auto with = [&whole](std::size_t place, const std::string& bytes) {
    std::string changed = whole;
    changed.replace(place, bytes.size(), bytes);
    return changed;
  };
  const struct {
    const char* what;
    std::string content;
    StoreFault fault;
  } cases[] = {
      {"an empty file", "", StoreFault::Foreign},
      {"another file", std::string(5000, 'x'), StoreFault::Foreign},
      {"only a head", whole.substr(0, 100), StoreFault::Damaged},
      {"cut short", whole.substr(0, whole.size() - 4096), StoreFault::Damaged},
      {"cut in the middle of a page", whole.substr(0, whole.size() / 2 + 7), StoreFault::Damaged},
      {"another program's database", with(68, "QGIS"), StoreFault::Foreign},
      {"a later release's store", with(60, std::string("\0\0\0\x63", 4)), StoreFault::LaterRelease},
  };
  for (const auto& c : cases) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << c.content;
    EXPECT_EQ(FaultOf(file), c.fault) << c.what;
    EXPECT_EQ(ReadFile(file), c.content) << c.what;
  }
  std::filesystem::remove(file);
  EXPECT_EQ(FaultOf(file), StoreFault::Missing);
  std::filesystem::create_directory(file);
  EXPECT_EQ(FaultOf(file), StoreFault::Missing);
}

TEST_F(StoreTest, AReadOnlyStoreIsRefusedEvenForAnAdministrator) {
  const std::filesystem::path file = home_.Place.StoreFile();
  const std::string whole = ReadFile(file);
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  EXPECT_EQ(FaultOf(file), StoreFault::ReadOnly);
  EXPECT_EQ(ReadFile(file), whole);
}

TEST_F(StoreTest, AForeignDatabaseOfTheSameEngineIsRefused) {
  const std::filesystem::path file = home_.Place.DataFolder() / "other.db";
  {
    Store other = Store::Create(file);
    other.ExecuteScript("create table settings (a); pragma application_id = 0;");
  }
  const std::string before = ReadFile(file);
  EXPECT_EQ(FaultOf(file), StoreFault::Foreign);
  EXPECT_EQ(ReadFile(file), before);
  EXPECT_THROW(Store::Create(file), StoreError);
}

TEST_F(StoreTest, WhatIsMadeIsPrivate) {
  const auto rightsOf = [](const std::filesystem::path& path) {
    struct stat facts {};
    EXPECT_EQ(::stat(path.c_str(), &facts), 0) << path;
    return facts.st_mode & 07777U;
  };
  const std::filesystem::path folder = home_.Place.Folder / "a" / "b";
  ASSERT_TRUE(MakePrivateFolders(folder));
  CreateStore(folder / "made.mdb", test::DataFolder());
  WriteFileSafely(folder / "text", "x");
  EXPECT_EQ(rightsOf(home_.Place.Folder / "a"), 0700U);
  EXPECT_EQ(rightsOf(folder), 0700U);
  EXPECT_EQ(rightsOf(folder / "made.mdb"), 0600U);
  EXPECT_EQ(rightsOf(folder / "text"), 0600U);
}

}  // namespace
}  // namespace orvex::core
