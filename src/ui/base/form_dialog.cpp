#include "ui/base/form_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <utility>

#include "ui/base/qt_text.h"
#include "ui/base/select_all_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

FormDialog::FormDialog(Workplace& place, const QString& objectName, QWidget* parent)
    : QDialog(parent), place_(place) {
  setObjectName(objectName);
  setModal(true);
}

QHBoxLayout* FormDialog::MakeButtons(const QString& action) {
  action_ = new QPushButton(action);
  action_->setObjectName("action");
  action_->setDefault(true);
  auto* cancel = new QPushButton(tr("Cancel"));
  cancel->setObjectName("cancel");
  cancel->setAutoDefault(false);
  // Turning back asks nothing of the field that had the focus.
  cancel->setFocusPolicy(Qt::TabFocus);
  connect(action_, &QPushButton::clicked, this, [this] { Save(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, kGrid, 0, 0);
  row->addStretch();
  row->addWidget(action_);
  row->addWidget(cancel);
  return row;
}

void FormDialog::FocusField(const QString& name) {
  if (auto* field = findChild<QWidget*>(name)) {
    field->setFocus(Qt::OtherFocusReason);
    SelectAllText(*field);
  }
}

void FormDialog::showEvent(QShowEvent* event) {
  if (!std::exchange(marksTexts_, true)) {
    SelectAllTextOnFocus(*this);
  }
  QDialog::showEvent(event);
}

void FormDialog::ShowRefusal(const core::Refusal& refusal) {
  Session().Shown.ShowMessage(refusal.Text, core::MessageButtons::Ok, refusal.Icon);
  FocusField(Shown(refusal.Field));
}

void FormDialog::Finish(const core::SaveResult& result) {
  if (result.Refused) {
    ShowRefusal(*result.Refused);
    return;
  }
  savedId_ = result.Id;
  accept();
}

}  // namespace orvex::ui
