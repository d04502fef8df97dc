// The main window: a rail with the pages, the search over all clients above them, and the sky of
// now always in sight at the right.
#pragma once

#include <QMainWindow>

#include "ui/base/workplace.h"
#include "ui/main/status_panels.h"

class QStackedWidget;
class QStatusBar;

namespace orvex::ui {

class ClientCommands;
class ClientLists;
class ClientsPage;
class ExchangeCommands;
class FirstRun;
class GroupExport;
class MainMenus;
class MainPages;
class Rail;
class SearchPage;
class SkyPanel;
class TodayPage;
class TopBar;
class TransitCommands;

class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(Workplace& place);

  // What is in sight of the window.
  struct Place {
    int Page = 0;
    std::int32_t Group = 0;
    std::int32_t Client = 0;
  };
  Place InSight() const;
  void Show(const Place& place);

 protected:
  // Ends the program, whatever other windows are open.
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QAction* Command(const char* name, const QString& text, void (MainWindow::*run)());
  void MakeActions();
  void MakeMenus();
  void MakeBars();
  void LayOut();
  void AddPages();
  void Connect();
  void ConnectFind();
  void OfferExports();
  void FollowPage();
  void ShowPageTitle();
  void Start();
  void ShowClientCounts();
  void ShowBirthdays();
  void FindAnyone();
  void FilterClients();
  void SearchClients();
  void RefreshSky();
  void FoldSky();
  void NextPane();
  void PrintPage();
  void OpenSettings();
  void OpenCities();
  void OpenMatters();
  void ShowGuide();
  void Quit() { close(); }
  template <typename Box>
  void ShowBox();

  Workplace& place_;
  Rail* rail_;
  TopBar* top_;
  MainPages* pages_;
  QStackedWidget* clientsPage_;  // the clients, or the first steps
  ClientsPage* clients_;
  ClientLists* lists_;  // of the clients' page
  SkyPanel* sky_;
  TodayPage* today_;
  ClientCommands* commands_;
  TransitCommands* transits_;
  GroupExport* reports_;
  SearchPage* search_;
  ExchangeCommands* exchange_;
  FirstRun* firstRun_;
  QStatusBar* bar_;
  StatusPanels status_;
  QAction* settings_ = nullptr;
  QAction* cities_ = nullptr;
  QAction* matters_ = nullptr;
  QAction* refresh_ = nullptr;
  QAction* fold_ = nullptr;
  QAction* filter_ = nullptr;
  QAction* find_ = nullptr;
  QAction* advanced_ = nullptr;
  QAction* print_ = nullptr;
  QAction* guide_ = nullptr;
  QAction* quit_ = nullptr;
};

}  // namespace orvex::ui
