// What can be done with groups and clients, as actions of menus, tool bar and keys.
#pragma once

#include <QAction>
#include <QObject>

#include "core/save_result.h"
#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

class ClientLists;

class ClientCommands final : public QObject {
  Q_OBJECT

 public:
  ClientCommands(Workplace& place, ClientLists& lists, QWidget& window);

  QAction* AddClient;
  QAction* View;
  QAction* EditClient;
  QAction* DeleteClient;
  QAction* MoveClient;
  QAction* AddGroup;
  QAction* EditGroup;
  QAction* DeleteGroup;
  QAction* InstantChart;

 signals:
  // Clients were added, changed or deleted.
  void ClientsChanged();
  // The instant chart has no group to go to, and the user wants to name one.
  void SettingsWanted();
  // The page of the clients is to be in sight.
  void PageWanted();

 private:
  QAction* Make(const char* name, const QString& text, const QKeySequence& keys,
                void (ClientCommands::*run)());
  void Follow();
  void RunAddClient();
  void RunView();
  void RunEditClient();
  void RunDeleteClient();
  void RunMoveClient();
  void RunAddGroup();
  void RunEditGroup();
  void RunDeleteGroup();
  void RunInstantChart();
  void ShowNewClient(std::int32_t clientId);
  // Shows a refusal; false where there is none.
  bool Refused(const std::optional<core::Refusal>& refused);

  Workplace& place_;
  ClientLists& lists_;
  QWidget& window_;
};

}  // namespace orvex::ui
