// Who has a birthday today. Follows the clock over midnight, for the program is left open.
#pragma once

#include <QWidget>

#include "core/date_text.h"
#include "core/table.h"
#include "ui/base/workplace.h"

class QLabel;

namespace orvex::ui {

class TableView;

class BirthdayList final : public QWidget {
  Q_OBJECT

 public:
  explicit BirthdayList(Workplace& place, QWidget* parent = nullptr);

  void Reload();
  // Reloads where the day has changed since, and says so.
  bool FollowDay();

  const core::Table& Table() const;
  TableView& List() { return *list_; }

 private:
  Workplace& place_;
  QLabel* caption_;
  TableView* list_;
  core::DateTime day_{};  // whose birthdays are shown
};

}  // namespace orvex::ui
