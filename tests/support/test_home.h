// A temporary home with a session, removed when the test ends.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "astro/ephemeris_gateway.h"
#include "core/startup.h"
#include "core/store_schema.h"
#include "support/data_folder.h"

namespace orvex::test {

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvex-test-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

inline core::DateTime Moment(const std::string& text) {
  const auto moment = core::ParseDateTime(text);
  EXPECT_TRUE(moment) << text;
  return moment.value_or(core::DateTime{});
}

// A freshly made store, made once a process and copied.
inline const std::filesystem::path& TemplateStore() {
  static const TempFolder folder;
  static const std::filesystem::path file = [] {
    const std::filesystem::path made = folder.Path() / "ORVD.mdb";
    core::CreateStore(made, DataFolder());
    return made;
  }();
  return file;
}

class TestHome {
 public:
  explicit TestHome(const std::string& now = "2026-11-24 10:00:00") : Clock(Moment(now)) {
    Place.Folder = folder_.Path() / "home";
    core::MakePrivateFolders(Place.DataFolder());
    std::filesystem::copy_file(TemplateStore(), Place.StoreFile());
  }

  core::StartupPlan Plan(core::StartMode mode = core::StartMode::Writer) const {
    return {Place, DataFolder(), folder_.Path() / "machine.json", mode};
  }

  // A session on this home; null where the start was refused, with the message recorded.
  std::unique_ptr<core::Session> Start(core::StartMode mode = core::StartMode::Writer) {
    return core::RunStartup(Plan(mode), Clock, Messages, Ephemeris);
  }

  core::Home Place;
  core::FixedClock Clock;
  core::RecordedMessages Messages;
  astro::EphemerisGateway Ephemeris;

 private:
  TempFolder folder_;
};

}  // namespace orvex::test
