// Files that appear together or not at all.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvex::core {

// Contents are written beside their files first; Commit then puts them in their places. Whatever
// fails before leaves every old file as it was and nothing beside it.
class StagedFiles {
 public:
  StagedFiles() = default;
  StagedFiles(const StagedFiles&) = delete;
  StagedFiles& operator=(const StagedFiles&) = delete;
  ~StagedFiles();

  // Writes the content beside the file, readable by its owner alone; a file behind a link stays
  // behind it. std::runtime_error where that can't be done, or where what is no plain file is in
  // the way: a folder, a device, a pipe.
  void Add(const std::filesystem::path& name, const std::string& content);

  // std::runtime_error where a file could not be put in its place; those before it are then new.
  void Commit();

 private:
  struct Staged {
    std::filesystem::path Beside;
    std::filesystem::path File;
  };
  std::vector<Staged> staged_;
};

}  // namespace orvex::core
