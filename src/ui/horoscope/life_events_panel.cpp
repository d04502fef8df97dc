#include "ui/horoscope/life_events_panel.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <memory>

#include "judgement/life_events.h"
#include "ui/base/export_table.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/message_boxes.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_plan.h"
#include "ui/horoscope/life_event_dialog.h"

namespace orvex::ui {

namespace {

// clang-format off
const std::vector<ColumnPlan> kEventColumns = {
    {"Date",   CellKind::Text, 132, 0},
    {"Matter", CellKind::Text, 100, 0},
    {"Remark", CellKind::Text,  64, 1}};
// clang-format on

}  // namespace

LifeEventsPanel::LifeEventsPanel(Workplace& place, std::int32_t clientId)
    : place_(place),
      clientId_(clientId),
      events_(Named(new TableView, "lifeEvents")),
      plan_(new TablePlan(*events_, kEventColumns, {height::kLeastRow, height::kListRow})),
      add_(MakeButton("addEvent", tr("&Add…"))),
      edit_(MakeButton("editEvent", tr("Ed&it…"))),
      delete_(MakeButton("deleteEvent", tr("&Delete"))) {
  LayOut();
  Connect();
}

void LifeEventsPanel::LayOut() {
  events_->setAccessibleName(tr("Life events"));
  events_->setSelectionMode(QAbstractItemView::SingleSelection);
  events_->setMinimumHeight(1);
  events_->SetEmptyText(
      tr("No event is noted yet. Press “Add” to note a marriage, a post, a journey: the birth "
         "times are tried by them."));
  OfferExport(place_, *events_);
  auto* head = new QHBoxLayout;
  head->setSpacing(space::kXs);
  head->addWidget(MakeHeading(tr("Life events")));
  head->addStretch(1);
  for (QPushButton* button : {add_, edit_, delete_}) {
    button->setFixedHeight(height::kSmallField);
    head->addWidget(button);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addLayout(head);
  layout->addWidget(events_, 1);
}

void LifeEventsPanel::Connect() {
  connect(add_, &QPushButton::clicked, this, &LifeEventsPanel::Add);
  connect(edit_, &QPushButton::clicked, this, &LifeEventsPanel::Edit);
  connect(delete_, &QPushButton::clicked, this, &LifeEventsPanel::Delete);
  connect(events_, &TableView::TagActivated, this, &LifeEventsPanel::Edit);
  connect(events_, &TableView::TagChosen, this, &LifeEventsPanel::EnableButtons);
  auto* erase = new QShortcut(KeysOf("Horoscope", "deleteEvent"), events_);
  erase->setContext(Qt::WidgetShortcut);
  connect(erase, &QShortcut::activated, this, &LifeEventsPanel::Delete);
}

void LifeEventsPanel::Reload(std::int32_t eventId) {
  const std::string tag = eventId == 0 ? events_->SelectedTag() : Typed(WholeText(eventId));
  events_->SetTableAndChoose(judgement::LoadEvents(place_.Session, clientId_), tag);
  plan_->Fit();
  EnableButtons();
}

std::optional<std::int32_t> LifeEventsPanel::Chosen() const {
  return IdOfTag(events_->SelectedTag());
}

void LifeEventsPanel::EnableButtons() {
  const bool chosen = Chosen().has_value();
  edit_->setEnabled(chosen);
  delete_->setEnabled(chosen);
}

void LifeEventsPanel::Add() { Run(LifeEventDialog::ForNew(place_, clientId_, this)); }

void LifeEventsPanel::Edit() {
  if (const std::optional<std::int32_t> event = Chosen()) {
    Run(LifeEventDialog::ForEdit(place_, *event, this));
  }
}

void LifeEventsPanel::Run(LifeEventDialog* dialog) {
  const std::unique_ptr<LifeEventDialog> owned(dialog);
  if (dialog != nullptr && dialog->exec() == QDialog::Accepted) {
    Reload(dialog->SavedId());
    emit EventsChanged();
  }
}

void LifeEventsPanel::Delete() {
  const std::optional<std::int32_t> event = Chosen();
  if (!event ||
      !Ask(place_.Session.Shown, judgement::DeleteEventQuestion(place_.Session, *event))) {
    return;
  }
  const core::SaveResult deleted = judgement::DeleteEvent(place_.Session, *event);
  if (deleted.Refused) {
    Complain(place_.Session.Shown, deleted.Refused->Text);
  }
  Reload();
  emit EventsChanged();
}

}  // namespace orvex::ui
