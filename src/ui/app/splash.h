// What is seen while the program starts: its name and version.
#pragma once

#include <QSplashScreen>

namespace orvex::ui {

class Splash final : public QSplashScreen {
  Q_OBJECT

 public:
  Splash();
};

}  // namespace orvex::ui
