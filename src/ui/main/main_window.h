// The main window: clients on the left, the sky of now always in sight on the right.
#pragma once

#include <QMainWindow>

#include "ui/base/workplace.h"
#include "ui/main/status_panels.h"

class QSplitter;
class QStackedWidget;
class QTabWidget;

namespace orvex::ui {

class BirthdayList;
class ClientCommands;
class ClientLists;
class FirstRun;
class SearchPage;
class SkyPanel;
class TransitCommands;

class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(Workplace& place);

  // Another page beside that of the clients.
  void AddPage(QWidget* page, const QString& title);

 protected:
  // Ends the program, whatever other windows are open.
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeActions();
  void LayOut();
  void Connect();
  void MakeRoom();
  void FollowPage();
  void Start();
  void MakeMenus();
  void MakeToolBar();
  QWidget* BuildClientsPage();
  void ShowClientCounts();
  void OpenSettings();
  void OpenCities();
  template <typename Box>
  void ShowBox();

  Workplace& place_;
  QTabWidget* pages_;
  QStackedWidget* clientsPage_;
  ClientLists* lists_;
  SkyPanel* sky_;
  ClientCommands* commands_;
  TransitCommands* transits_;
  FirstRun* firstRun_ = nullptr;
  SearchPage* search_;
  QSplitter* halves_;
  QList<int> givenSizes_;  // of the halves beside the page of the clients
  BirthdayList* birthdays_;
  StatusPanels status_;
  QAction* settings_ = nullptr;
  QAction* cities_ = nullptr;
  QAction* refresh_ = nullptr;
  QAction* filter_ = nullptr;
  QAction* find_ = nullptr;
  QAction* quit_ = nullptr;
};

}  // namespace orvex::ui
