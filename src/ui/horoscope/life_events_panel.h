// The events of the client's life, by which a birth time is tried: added, changed and deleted here.
#pragma once

#include <QWidget>

#include "ui/base/workplace.h"

class QPushButton;

namespace orvex::ui {

class LifeEventDialog;
class TablePlan;
class TableView;

class LifeEventsPanel final : public QWidget {
  Q_OBJECT

 public:
  LifeEventsPanel(Workplace& place, std::int32_t clientId);

  // Reads the events again; the chosen one, or that of an id, is chosen.
  void Reload(std::int32_t eventId = 0);

 signals:
  // An event was added, changed or deleted.
  void EventsChanged();

 private:
  void LayOut();
  void Connect();
  std::optional<std::int32_t> Chosen() const;
  void EnableButtons();
  void Add();
  void Edit();
  void Delete();
  void Run(LifeEventDialog* dialog);

  Workplace& place_;
  std::int32_t clientId_;
  TableView* events_;
  TablePlan* plan_;
  QPushButton* add_;
  QPushButton* edit_;
  QPushButton* delete_;
};

}  // namespace orvex::ui
