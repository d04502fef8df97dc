#include "ui/dialogs/matter_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>

#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/form_rows.h"

namespace orvex::ui {

MatterDialog::MatterDialog(Workplace& place, std::int32_t matterId, QWidget* parent)
    : FormDialog(place, "matterDialog", parent),
      matterId_(matterId),
      name_(Named(new QLineEdit, "matterName")),
      main_(Named(new QLineEdit, "mainCusp")),
      supporting_(Named(new QLineEdit, "supporting")),
      denying_(Named(new QLineEdit, "denying")),
      source_(Named(new QLineEdit, "source")) {}

MatterDialog* MatterDialog::ForNew(Workplace& place, QWidget* parent) {
  auto* dialog = new MatterDialog(place, 0, parent);
  dialog->Build(tr("Add Matter"), tr("&Add"));
  return dialog;
}

MatterDialog* MatterDialog::ForEdit(Workplace& place, std::int32_t matterId, QWidget* parent) {
  const std::optional<judgement::MatterForm> form =
      judgement::OpenEditMatter(place.Session, matterId);
  if (!form) {
    return nullptr;
  }
  auto* dialog = new MatterDialog(place, matterId, parent);
  dialog->Build(tr("Edit Matter"), tr("&Save"));
  dialog->Fill(*form);
  return dialog;
}

void MatterDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  name_->setMinimumWidth(40 * kGrid);
  supporting_->setPlaceholderText("2 11");
  denying_->setPlaceholderText("1 6 10");
  source_->setPlaceholderText(tr("teacher or school"));
  auto* fields = new QFormLayout;
  fields->addRow(tr("Matter &Name:"), name_);
  fields->addRow(tr("&Main Cusp:"), main_);
  fields->addRow(tr("S&upporting:"), supporting_);
  fields->addRow(tr("&Denying:"), denying_);
  fields->addRow(tr("Sour&ce:"), source_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(fields);
  layout->addWidget(MakeHint(tr("Houses from 1 to 12 with blanks between them, each once.")));
  layout->addLayout(MakeButtons(action));
}

void MatterDialog::Fill(const judgement::MatterForm& form) {
  name_->setText(Shown(form.Name));
  main_->setText(Shown(form.MainCusp));
  supporting_->setText(Shown(form.Supporting));
  denying_->setText(Shown(form.Denying));
  source_->setText(Shown(form.Source));
}

void MatterDialog::Save() {
  const judgement::MatterForm form{Typed(name_->text()), Typed(main_->text()),
                                   Typed(supporting_->text()), Typed(denying_->text()),
                                   Typed(source_->text())};
  Finish(matterId_ == 0 ? judgement::SaveNewMatter(Session(), form)
                        : judgement::SaveMatterChanges(Session(), form, matterId_));
}

}  // namespace orvex::ui
