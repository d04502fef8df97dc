// The clients of what is chosen among the groups: a group, all of them, or the recent ones.
#pragma once

#include <QWidget>
#include <vector>

#include "core/table.h"
#include "ui/base/workplace.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace orvex::ui {

class ElidedLabel;
class GroupColumn;
class TablePlan;
class TableView;

class ClientLists final : public QWidget {
  Q_OBJECT

 public:
  ClientLists(Workplace& place, GroupColumn& groups, QWidget* parent = nullptr);

  // Reads the groups again; what is chosen stays, else the first group is chosen.
  void LoadGroups();
  // Reads the numbers of the groups' clients again.
  void ShowCounts();
  // Turns to a group, or to one of the rows above the groups, and reads its clients again; a client
  // is chosen, the first where it is not among them.
  void ShowGroup(std::int32_t groupId, std::int32_t clientId = 0);
  void ReloadClients(std::int32_t clientId = 0) { ShowGroup(Group(), clientId); }
  // Clients may have been changed elsewhere: where one of those shown was, they are read again. The
  // choice and what the list is narrowed by stay.
  void FollowStore();
  // A horoscope was opened.
  void NoteOpened(std::int32_t clientId) { opened_.push_back(clientId); }

  // What is chosen among the groups, kAllClients and kRecentClients too; 0: there are no groups.
  std::int32_t Group() const { return group_; }
  // The group that was chosen last; new clients go there.
  std::int32_t OwnGroup() const { return ownGroup_; }
  std::int32_t Client() const { return client_; }  // 0: none is chosen
  QString GroupName() const;
  QString ClientName() const;
  std::size_t GroupCount() const;
  const core::Table& Clients() const;
  // The list is narrowed, and nobody in it was chosen since.
  bool IsNarrowed() const { return narrowed_; }

  TableView& ClientTable() { return *clients_; }
  TableView& GroupTable();
  QPushButton& AllColumns() { return *allColumns_; }
  void FocusFilter();

  // A box over the list in the place of the column of groups.
  void SetGroupsAsBox(bool box);
  void ShowAllColumns(bool all);

 signals:
  // What is chosen has changed, and with it what the commands may do.
  void ChoiceChanged();
  // "12 client(s)", or what to do without groups.
  void CountChanged(const QString& text);
  void ViewRequested();
  void GroupsLoaded();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QHBoxLayout* MakeHead();
  void PlanClients();
  void Connect();
  void ShowNoGroups();
  void ShowTitle();
  core::Table LoadClients() const;
  void FilterClients(const QString& text);
  void LeaveFilter(int key);
  void ChooseClient(std::int32_t clientId);
  void ShowOrder();
  void Tell(const std::string& count);

  Workplace& place_;
  GroupColumn& groups_;
  std::int32_t group_ = 0;
  std::int32_t ownGroup_ = 0;
  std::int32_t client_ = 0;
  bool narrowed_ = false;
  std::vector<std::int32_t> opened_;  // since the program's start, the last one last
  std::string sortColumn_;            // that of the settings, as it was shown last
  ElidedLabel* title_;
  QComboBox* box_;
  ElidedLabel* count_;
  QLineEdit* filter_;
  QPushButton* allColumns_;
  TableView* clients_;
  TablePlan* plan_;
};

}  // namespace orvex::ui
