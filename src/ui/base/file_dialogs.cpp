#include "ui/base/file_dialogs.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QUrl>

#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

std::optional<std::filesystem::path> PathOf(const QString& chosen) {
  return chosen.isEmpty() ? std::nullopt : std::optional<std::filesystem::path>(Typed(chosen));
}

}  // namespace

std::optional<std::filesystem::path> FileDialogs::ChooseFolder(QWidget* parent,
                                                               const std::string& title,
                                                               const std::filesystem::path& start) {
  return PathOf(QFileDialog::getExistingDirectory(parent, Shown(title), Shown(start.string())));
}

std::vector<std::filesystem::path> FileDialogs::ChooseFilesToRead(QWidget* parent,
                                                                  const std::string& title,
                                                                  const std::string& filter) {
  std::vector<std::filesystem::path> files;
  for (const QString& file :
       QFileDialog::getOpenFileNames(parent, Shown(title), QString(), Shown(filter))) {
    files.emplace_back(Typed(file));
  }
  return files;
}

std::optional<std::filesystem::path> FileDialogs::ChooseFileToWrite(
    QWidget* parent, const std::string& title, const std::filesystem::path& start,
    const std::string& filter) {
  return PathOf(
      QFileDialog::getSaveFileName(parent, Shown(title), Shown(start.string()), Shown(filter)));
}

bool FileDialogs::OpenWithDesktop(const std::filesystem::path& file) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(Shown(file.string())));
}

}  // namespace orvex::ui
