// The main window over a practice of its own, driven as a person does.
#pragma once

#include <QAction>
#include <QLabel>

#include "chart/client_saving.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/main/main_window.h"

namespace orvex::ui {

class MainWindowTest : public test::DeskTest {
 protected:
  ~MainWindowTest() override { DeleteOpenWindows(); }

  std::int32_t AddClient(const std::string& name, const std::string& birth,
                         std::int32_t group = 1) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    // Each in a second of its own, by which it is found again.
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return chart::SaveNewClient(*session_, form, group).Id;
  }

  void Open() {
    window_ = std::make_unique<MainWindow>(place_);
    Show(*window_);
  }

  // The desktop gives the keys back to the window when another one has closed; the platform of the
  // tests does not.
  void ComeBack() {
    window_->activateWindow();
    QCoreApplication::processEvents();
  }

  void Trigger(const char* action) {
    auto* found = window_->findChild<QAction*>(action);
    ASSERT_NE(found, nullptr) << action;
    ASSERT_TRUE(found->isEnabled()) << action;
    found->trigger();
    QCoreApplication::processEvents();
  }

  bool CanDo(const char* action) { return window_->findChild<QAction*>(action)->isEnabled(); }
  QString Label(const char* name) { return Find<QLabel>(*window_, name).text(); }
  TableView& List(const char* name) { return Find<TableView>(*window_, name); }

  std::unique_ptr<MainWindow> window_;
};

}  // namespace orvex::ui
