// The frame of the programs that write pictures of windows: PROGRAM FOLDER.
#pragma once

#include <QApplication>
#include <QLocale>
#include <filesystem>

#include "ui/base/theme.h"

namespace orvex::test {

// Calls `writeAll` with the folder of the call, which is made if need be.
template <typename WriteAll>
int RunPictureProgram(int argc, char** argv, WriteAll writeAll) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QLocale::setDefault(QLocale::c());
  ui::Theme::Apply(application);
  const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
  std::filesystem::create_directories(folder);
  writeAll(folder);
  return 0;
}

}  // namespace orvex::test
