#include "ui/horoscope/life_event_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

#include "judgement/matters.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

LifeEventDialog* LifeEventDialog::ForNew(Workplace& place, std::int32_t clientId, QWidget* parent) {
  auto* dialog = new LifeEventDialog(place, {place.Session.Time.Today(), 0, ""}, parent);
  dialog->clientId_ = clientId;
  dialog->Build(tr("Add Life Event"), tr("&Add"));
  return dialog;
}

LifeEventDialog* LifeEventDialog::ForEdit(Workplace& place, std::int32_t eventId, QWidget* parent) {
  const std::optional<judgement::EventForm> form = judgement::OpenEditEvent(place.Session, eventId);
  if (!form) {
    return nullptr;
  }
  auto* dialog = new LifeEventDialog(place, *form, parent);
  dialog->eventId_ = eventId;
  dialog->Build(tr("Edit Life Event"), tr("&Save"));
  return dialog;
}

LifeEventDialog::LifeEventDialog(Workplace& place, const judgement::EventForm& form,
                                 QWidget* parent)
    : FormDialog(place, "lifeEventDialog", parent),
      date_(new DateEdit("eventDate")),
      matter_(Named(new QComboBox, "matter")),
      remark_(Named(new QLineEdit(Shown(form.Remark)), "remark")) {
  date_->SetDate(form.Date);
  FillMatters(form.MatterId);
}

void LifeEventDialog::FillMatters(std::int32_t matterId) {
  for (const core::Row& matter : judgement::LoadMatters(Session()).Rows) {
    matter_->addItem(Shown(matter.Cells.front().Text), IdOfTag(matter.Tag).value_or(0));
  }
  matter_->setCurrentIndex(matter_->findData(matterId));
}

void LifeEventDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  remark_->setMinimumWidth(40 * kGrid);
  auto* fields = new QFormLayout;
  fields->addRow(tr("&Date:"), date_);
  fields->addRow(QString(), date_->MakeEcho());
  fields->addRow(tr("&Matter:"), matter_);
  fields->addRow(tr("&Remark:"), remark_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(fields);
  layout->addLayout(MakeButtons(action));
}

void LifeEventDialog::Save() {
  if (!IsRead(*date_)) {
    return;
  }
  const judgement::EventForm form{*date_->Date(), matter_->currentData().toInt(),
                                  Typed(remark_->text())};
  Finish(eventId_ == 0 ? judgement::SaveNewEvent(Session(), form, clientId_)
                       : judgement::SaveEventChanges(Session(), form, eventId_));
}

}  // namespace orvex::ui
