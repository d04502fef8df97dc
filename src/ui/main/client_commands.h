// What can be done with groups and clients, as actions of menus, tool bar and keys.
#pragma once

#include <QAction>
#include <QObject>
#include <vector>

#include "core/save_result.h"
#include "practice/deleted_client.h"
#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

class ClientLists;
class TableView;

class ClientCommands final : public QObject {
  Q_OBJECT

 public:
  ClientCommands(Workplace& place, ClientLists& lists, QWidget& window);

  // What the commands act on from now on: the chosen client of a list that is in sight. Of `list`
  // that is the row's tag; without one, that of the client lists, whose group is then in sight too.
  void ActOn(TableView* list);
  void ActOnLists() { ActOn(nullptr); }
  // The Del key in a list.
  void DeleteIn(TableView& list, QAction& deletes);
  // Nothing that could be acted on is in sight.
  void ActOnNothing();

  // The same of a client that is in no list: one that was found while its name was typed.
  void Open(std::int32_t clientId);
  void Edit(std::int32_t clientId);
  // Its group and its row.
  void ShowInGroup(std::int32_t clientId);
  // The dialog of a new client whose name is typed already.
  void AddNamed(const QString& name, bool query);

  QAction* AddClient;
  // The same as a horary query of now.
  QAction* NewQuery;
  QAction* View;
  // Opens the horoscope with its reports to choose from.
  QAction* Report;
  QAction* EditClient;
  QAction* DeleteClient;
  // Brings the client back that was deleted last; not in sight without one.
  QAction* UndoDelete;
  QAction* MoveClient;
  QAction* AddGroup;
  QAction* EditGroup;
  QAction* DeleteGroup;
  QAction* InstantChart;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  // Clients were added, changed or deleted.
  void ClientsChanged();
  // The instant chart has no group to go to, and the user wants to name one.
  void SettingsWanted();
  // The page of the clients is to be in sight.
  void PageWanted();

 private:
  QAction* Make(const char* name, const QString& text, void (ClientCommands::*run)());
  void Follow();
  bool OnLists() const { return sees_ && list_ == nullptr; }
  std::int32_t Client() const;
  void ShowChanged(std::int32_t clientId);
  void OfferUndo();
  void RunAddClient() { AddNamed({}, false); }
  void RunNewQuery() { AddNamed({}, true); }
  void RunView();
  void RunReport();
  void RunEditClient();
  void RunDeleteClient();
  void RunUndoDelete();
  void RunMoveClient();
  void RunAddGroup();
  void RunEditGroup();
  void RunDeleteGroup();
  void RunInstantChart();
  void ShowNewClient(std::int32_t groupId, std::int32_t clientId);
  // Shows a refusal; false where there is none.
  bool Refused(const std::optional<core::Refusal>& refused);

  Workplace& place_;
  ClientLists& lists_;
  QWidget& window_;
  bool sees_ = true;
  std::vector<practice::KeptClient> deleted_;  // since the program's start, the last one last
  TableView* list_ = nullptr;                  // null: that of the client lists
};

}  // namespace orvex::ui
