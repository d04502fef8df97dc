#include "ui/dialogs/remedy_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>

#include "ui/base/moment_edit.h"
#include "ui/base/planet_box.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

QPlainTextEdit* TextBox(const char* name) {
  auto* box = new QPlainTextEdit;
  box->setObjectName(name);
  box->setTabChangesFocus(true);
  box->setMinimumSize(48 * kGrid, 10 * kGrid);
  return box;
}

}  // namespace

RemedyDialog* RemedyDialog::ForNew(Workplace& place, std::int32_t clientId, QWidget* parent) {
  auto* dialog = new RemedyDialog(place, practice::OpenAddRemedy(place.Session), parent);
  dialog->clientId_ = clientId;
  dialog->Build(tr("Add Remedy"), tr("&Add"));
  return dialog;
}

RemedyDialog* RemedyDialog::ForEdit(Workplace& place, std::int32_t remedyId, QWidget* parent) {
  const std::optional<practice::RemedyForm> form =
      practice::OpenEditRemedy(place.Session, remedyId);
  if (!form) {
    return nullptr;
  }
  auto* dialog = new RemedyDialog(place, *form, parent);
  dialog->remedyId_ = remedyId;
  dialog->Build(tr("Edit Remedy"), tr("&Save"));
  return dialog;
}

RemedyDialog::RemedyDialog(Workplace& place, const practice::RemedyForm& form, QWidget* parent)
    : FormDialog(place, "remedyDialog", parent),
      planet_(new QComboBox),
      problem_(TextBox("problem")),
      remedy_(TextBox("remedy")),
      date_(new DateEdit("remedyDate")) {
  planet_->setObjectName("forPlanet");
  planet_->addItem(tr("None"), 0);
  AddPlanetsByName(*planet_, Session().Reference);
  planet_->setCurrentIndex(std::max(0, planet_->findData(form.PlanetId)));
  problem_->setPlainText(Shown(form.Problem));
  remedy_->setPlainText(Shown(form.Remedy));
  date_->SetDate(form.Date);
}

void RemedyDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  auto* fields = new QFormLayout;
  fields->addRow(tr("&Problem/Symptom:"), problem_);
  fields->addRow(tr("Remedy/S&olution:"), remedy_);
  fields->addRow(tr("For P&lanet:"), planet_);
  fields->addRow(tr("Remedy &Date:"), date_);
  fields->addRow(QString(), date_->MakeEcho());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(fields);
  layout->addLayout(MakeButtons(action));
}

void RemedyDialog::Save() {
  if (!IsRead(*date_)) {
    return;
  }
  const practice::RemedyForm form{planet_->currentData().toInt(), Typed(problem_->toPlainText()),
                                  Typed(remedy_->toPlainText()), *date_->Date()};
  Finish(remedyId_ == 0 ? practice::SaveNewRemedy(Session(), form, clientId_)
                        : practice::SaveRemedyChanges(Session(), form, remedyId_));
}

}  // namespace orvex::ui
