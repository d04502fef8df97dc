// The frame of the programs that write pictures of windows: PROGRAM FOLDER.
#pragma once

#include <QApplication>
#include <QLocale>
#include <QSize>
#include <filesystem>

#include "ui/base/theme.h"

namespace orvex::test {

// The size of the main and horoscope windows: $ORVEX_PICTURE_SIZE, "1280x720", else that of a small
// laptop's screen.
inline QSize PictureSize() {
  constexpr QSize kSmallLaptop(1366, 768);
  const QStringList sides = qEnvironmentVariable("ORVEX_PICTURE_SIZE").split('x');
  const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
  return size.isEmpty() ? kSmallLaptop : size;
}

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
