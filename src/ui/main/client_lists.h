// Groups, the clients of the chosen group, and the remedies of the chosen client.
#pragma once

#include <QWidget>

#include "core/table.h"
#include "ui/base/workplace.h"

class QLabel;
class QLineEdit;

namespace orvex::ui {

class TableView;

class ClientLists final : public QWidget {
  Q_OBJECT

 public:
  explicit ClientLists(Workplace& place, QWidget* parent = nullptr);

  // Reads the groups again; the chosen one stays, else the first is chosen.
  void LoadGroups();
  // Turns to a group and reads its clients again; a client is chosen, the first where it is not
  // among them.
  void ShowGroup(std::int32_t groupId, std::int32_t clientId = 0);
  void ReloadClients(std::int32_t clientId = 0) { ShowGroup(Group(), clientId); }
  void ReloadRemedies();

  std::int32_t Group() const { return group_; }    // 0: there is none
  std::int32_t Client() const { return client_; }  // 0: none is chosen
  QString GroupName() const;
  QString ClientName() const;
  std::size_t GroupCount() const;
  const core::Table& Clients() const;

  TableView& ClientTable() { return *clients_; }
  TableView& GroupTable() { return *groups_; }
  void FocusFilter();

 signals:
  // What is chosen has changed, and with it what the commands may do.
  void ChoiceChanged();
  // "12 client(s)", or what to do without groups.
  void CountChanged(const QString& text);
  void ViewRequested();
  void GroupsLoaded();

 private:
  QWidget* BuildGroups();
  QWidget* BuildClients();
  QWidget* BuildRemedies();
  void Connect();
  void ShowNoGroups();
  void FilterClients(const QString& text);
  void ChooseClient(std::int32_t clientId);
  void ShowOrder();

  Workplace& place_;
  std::int32_t group_ = 0;
  std::int32_t client_ = 0;
  std::string sortColumn_;  // that of the settings, as it was shown last
  TableView* groups_;
  QLineEdit* filter_;
  TableView* clients_;
  QLabel* remedyCaption_;
  TableView* remedies_;
};

}  // namespace orvex::ui
