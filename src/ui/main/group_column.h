// The column of the groups: all clients, the recent ones and each group with its number; at the
// foot whose birthday is today.
#pragma once

#include <QWidget>

#include "core/table.h"
#include "ui/base/workplace.h"

class QAction;
class QLabel;
class QToolButton;
class QVBoxLayout;

namespace orvex::ui {

class LinkButton;
class TableView;

class GroupColumn final : public QWidget {
  Q_OBJECT

 public:
  explicit GroupColumn(Workplace& place);

  TableView& Groups() { return *groups_; }

  // What "+" does.
  void SetAddAction(QAction* action);

  // Those who have a birthday today, a few by name.
  void ShowBirthdays(const core::Table& birthdays);

 signals:
  void ClientWanted(std::int32_t clientId);
  void TodayWanted();
  // The Enter key in the list of groups.
  void ClientsWanted();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddBirthday(std::int32_t client, const QString& name, const QString& age);

  QToolButton* add_;
  TableView* groups_;
  QWidget* foot_;
  LinkButton* caption_;
  QVBoxLayout* names_;
};

}  // namespace orvex::ui
