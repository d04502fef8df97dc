// Asking for files and folders. A test puts its own answers in the place of FileDialogs.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace orvex::ui {

class FileDialogs {
 public:
  FileDialogs() = default;
  FileDialogs(const FileDialogs&) = delete;
  FileDialogs& operator=(const FileDialogs&) = delete;
  virtual ~FileDialogs() = default;

  // A folder that exists; nothing where the user turned back.
  virtual std::optional<std::filesystem::path> ChooseFolder(QWidget* parent,
                                                            const std::string& title,
                                                            const std::filesystem::path& start);

  // Files that exist; none where the user turned back.
  virtual std::vector<std::filesystem::path> ChooseFilesToRead(QWidget* parent,
                                                               const std::string& title,
                                                               const std::string& filter);

  // Where to write a file. `start` names the folder and the file proposed, `filter` the kind as
  // "Spreadsheets (*.xlsx)". Asks before a file is replaced.
  virtual std::optional<std::filesystem::path> ChooseFileToWrite(QWidget* parent,
                                                                 const std::string& title,
                                                                 const std::filesystem::path& start,
                                                                 const std::string& filter);

  // Opens a file with the program that the desktop has for it. False where it has none.
  virtual bool OpenWithDesktop(const std::filesystem::path& file);
};

}  // namespace orvex::ui
