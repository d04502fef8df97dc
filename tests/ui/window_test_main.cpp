#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QLocale::setDefault(QLocale::c());
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
