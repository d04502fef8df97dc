#include "ui/app/start.h"

#include <unistd.h>

#include <QApplication>
#include <QEventLoop>
#include <QLocale>
#include <QTimer>
#include <iostream>
#include <memory>

#include "astro/ephemeris_gateway.h"
#include "core/startup.h"
#include "practice/demo_home.h"
#include "ui/app/splash.h"
#include "ui/base/layout_memory.h"
#include "ui/base/message_boxes.h"
#include "ui/base/open_windows.h"
#include "ui/base/theme.h"
#include "ui/base/window_look.h"
#include "ui/base/workplace.h"
#include "ui/main/kept_main_window.h"
#include "ui/main/main_window.h"

namespace orvex::ui {

namespace {

constexpr int kRefused = 1;

// The toolkit ends the process where it finds no display, after several lines of its own. One line
// tells the user what is wrong.
void SayThatNoDisplayIsThere(QtMsgType kind, const QMessageLogContext& /*where*/,
                             const QString& /*text*/) {
  if (kind == QtFatalMsg) {
    std::cerr << "Orvex+ needs a display to open its windows; orvex-cli does the same work without "
                 "one.\n";
    ::_exit(kRefused);
  }
}

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv) {
  const QtMessageHandler usual = qInstallMessageHandler(SayThatNoDisplayIsThere);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(usual);
  return application;
}

std::unique_ptr<core::Clock> ClockOf(const StartOptions& options) {
  const std::optional<core::DateTime> moment = core::ParseDateTime(options.Now);
  if (moment) {
    return std::make_unique<core::FixedClock>(*moment);
  }
  return std::make_unique<core::SystemClock>();
}

// The splash is seen for 150 milliseconds at the least.
void ShowSplash(Splash& splash) {
  constexpr int kStep = 150;
  splash.show();
  QEventLoop loop;
  QTimer::singleShot(kStep, &loop, &QEventLoop::quit);
  loop.exec();
}

core::StartupPlan PlanOf(const StartOptions& options) {
  if (options.Demo) {
    return practice::DemoPlan(core::StartMode::Owner);
  }
  return {core::Home{core::HomeFolder(options.Home)}, core::ShippedDataFolder(),
          core::MachineSettings::DefaultFile(), core::StartMode::Owner};
}

// Null where the start was refused or the demonstration could not be filled, after the message.
std::unique_ptr<core::Session> StartSession(const StartOptions& options, const core::Clock& clock,
                                            core::Messages& messages,
                                            astro::EphemerisGateway& ephemeris) {
  const core::StartupPlan plan = PlanOf(options);
  std::unique_ptr<core::Session> session = core::RunStartup(plan, clock, messages, ephemeris);
  if (!session || !options.Demo || !practice::NeedsDemoClients(plan.Place)) {
    return session;
  }
  try {
    practice::FillDemo(*session, plan.ShippedData);
    return session;
  } catch (const std::exception& error) {
    Complain(messages, error.what());
    return nullptr;
  }
}

int RunWindows(core::Session& session, bool demo) {
  FileDialogs files;
  LayoutMemory layout(demo ? session.Place.Folder / "windows.ini" : LayoutMemory::DefaultFile());
  Workplace place{session, files, layout};
  TakeLook(core::LookOf(session));
  KeptMainWindow kept(
      place,
      demo ? QCoreApplication::translate("MainWindow", "Orvex+ (demonstration)") : QString());
  kept.Window().show();
  const int status = QApplication::exec();
  // Horoscopes read the session; those still open go before it does.
  DeleteOpenWindows();
  return status;
}

}  // namespace

int RunWorkbench(int& argc, char** argv, const StartOptions& options) {
  const std::unique_ptr<QApplication> application = OpenDisplay(argc, argv);
  QApplication::setApplicationName("Orvex+");
  QLocale::setDefault(QLocale::c());
  Theme::Apply(*application);

  // Closing the main window ends the program, and nothing else does.
  QApplication::setQuitOnLastWindowClosed(false);

  MessageBoxes messages;
  astro::EphemerisGateway ephemeris;
  const std::unique_ptr<core::Clock> clock = ClockOf(options);
  std::unique_ptr<core::Session> session;
  {
    Splash splash;
    ShowSplash(splash);
    session = StartSession(options, *clock, messages, ephemeris);
  }
  return session ? RunWindows(*session, options.Demo) : kRefused;
}

}  // namespace orvex::ui
