#include "core/own_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "core/backup.h"
#include "core/staged_files.h"
#include "core/unicode_text.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

namespace fs = std::filesystem;

TEST(OwnFiles, NoneIsWrittenOverByWhateverPath) {
  test::TestHome home;
  const auto session = home.Start();
  const fs::path folder = home.Place.Folder;
  const fs::path data = home.Place.DataFolder();
  const fs::path backup = NewestBackup(home.Place, home.Clock).value();
  WriteFileSafely(home.Place.ReportTemplate(), "template");
  fs::create_symlink(home.Place.StoreFile(), folder / "link.svg");
  fs::create_symlink("link.svg", folder / "link of a link.svg");
  fs::create_hard_link(home.Place.StoreFile(), folder / "other name.svg");
  fs::create_directory_symlink(data, folder / "folder");
  const fs::path relative = fs::relative(home.Place.StoreFile());
  for (const fs::path& own :
       {home.Place.StoreFile(), relative, data / ".." / "Data" / "." / "ORVD.mdb",
        fs::path(home.Place.StoreFile().string() + "-journal"), backup,
        data / "Backups" / "not yet there.svg", folder / "link.svg", folder / "link of a link.svg",
        folder / "other name.svg", folder / "folder" / "ORVD.mdb", home.Place.ReportTemplate(),
        home.Place.LockFile(), home.Plan().MachineSettingsFile}) {
    EXPECT_THROW(CheckFileToWrite(*session, own), std::runtime_error) << own;
  }
  for (const fs::path& file : {folder / "new.svg", data / "list.xlsx", fs::path("new.svg")}) {
    EXPECT_NO_THROW(CheckFileToWrite(*session, file)) << file;
  }
}

TEST(StagedFiles, TheOldFileStaysWholeAndWhatIsNoPlainFileStaysWhatItIs) {
  const test::TempFolder folder;
  const fs::path file = folder.Path() / "file";
  WriteFileSafely(file, "old");
  fs::create_hard_link(file, folder.Path() / "old");
  WriteFileSafely(file, "new");
  EXPECT_EQ(test::ReadFile(file), "new");
  EXPECT_EQ(test::ReadFile(folder.Path() / "old"), "old");

  fs::create_symlink("file", folder.Path() / "link");
  WriteFileSafely(folder.Path() / "link", "through the link");
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
  EXPECT_EQ(test::ReadFile(file), "through the link");

  ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/null", folder.Path() / "device");
  for (const char* name : {"pipe", "device"}) {
    EXPECT_THROW(WriteFileSafely(folder.Path() / name, "x"), std::runtime_error) << name;
  }
  EXPECT_TRUE(fs::is_fifo(folder.Path() / "pipe"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(UnicodeText, OnlyWellFormedCharactersAreText) {
  const std::pair<std::string, bool> cases[] = {
      {"", true},
      {"abc\n\xC3\xA9 \xE0\xA4\x85 \xF0\x9F\x98\x80", true},
      {"\xF4\x8F\xBF\xBF", true},          // U+10FFFF
      {"\xF4\x90\x80\x80", false},         // beyond
      {"\xED\x9F\xBF\xEE\x80\x80", true},  // beside the surrogates
      {"\xED\xA0\x80", false},             // a surrogate
      {"\xED\xBF\xBF", false},
      {"\xC0\xAF", false},  // overlong forms
      {"\xE0\x9F\xBF", false},
      {"\xF0\x8F\xBF\xBF", false},
      {"\x80", false},
      {"\xE0\xA4", false},
      {"\xF8\x88\x80\x80\x80", false},
      {std::string("a\0b", 3), false}};
  for (const auto& [text, whole] : cases) {
    EXPECT_EQ(IsUtf8Text(text), whole) << text;
  }
}

TEST(UnicodeText, WhatATerminalObeysIsShownAsAMark) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\tb\nc \xE0\xA4\x85", "a\tb\nc \xE0\xA4\x85"},
      {"\x1B[2J", "\xE2\x90\x9B[2J"},
      {"\r\x7F\x01", "\xE2\x90\x8D\xE2\x90\xA1\xE2\x90\x81"},
      {"\xC2\x9B"
       "31m",
       "<U+009B>31m"},
      {"\xE2\x80\x8E\xE2\x80\xAE\xE2\x81\xA6\xE2\x81\xA9\xD8\x9C",
       "<U+200E><U+202E><U+2066><U+2069><U+061C>"},
      {"\xE2\x80\x8D\xE2\x80\xAF", "\xE2\x80\x8D\xE2\x80\xAF"},  // a joiner and a blank
      {"\x9B"
       "31m",
       "\xEF\xBF\xBD"
       "31m"}};
  for (const auto& [text, shown] : cases) {
    EXPECT_EQ(VisibleText(text), shown);
    EXPECT_EQ(VisibleText(shown), shown);
  }
}

}  // namespace
}  // namespace orvex::core
