#include "ui/base/form_dialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <utility>

#include "ui/base/calm_style.h"
#include "ui/base/message_boxes.h"
#include "ui/base/moment_edit.h"
#include "ui/base/qt_text.h"
#include "ui/base/select_all_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kTitleBar = 32;  // pixels that a desktop's frame may take above a dialog
constexpr const char* kThrowAwayQuestion =
    "What was typed here is not saved. Do you want to throw it away?";

// What a field holds; nothing for a widget that is no field.
QVariant ValueOf(const QWidget& widget) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    return line->text();
  }
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
    return text->toPlainText();
  }
  if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
    return choice->currentText();
  }
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  return button != nullptr && button->isCheckable() ? QVariant(button->isChecked()) : QVariant();
}

std::vector<QVariant> ValuesOf(const QWidget& dialog) {
  std::vector<QVariant> values;
  for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
    const bool isInside = widget->window() == &dialog;  // not in what drops down
    if (QVariant value = ValueOf(*widget); isInside && value.isValid()) {
      values.push_back(std::move(value));
    }
  }
  return values;
}

}  // namespace

FormDialog::FormDialog(Workplace& place, const QString& objectName, QWidget* parent)
    : QDialog(parent), place_(place) {
  setObjectName(objectName);
  setModal(true);
}

QHBoxLayout* FormDialog::MakeButtons(const QString& action) {
  action_ = new QPushButton(action);
  action_->setObjectName("action");
  action_->setDefault(true);
  action_->setProperty(kFilledButton, true);
  action_->setFont(Theme::Text(type::kText, QFont::DemiBold));
  auto* cancel = new QPushButton(tr("Cancel"));
  cancel->setObjectName("cancel");
  cancel->setAutoDefault(false);
  // Turning back asks nothing of the field that had the focus.
  cancel->setFocusPolicy(Qt::TabFocus);
  connect(action_, &QPushButton::clicked, this, [this] { Save(); });
  // A press on Cancel says itself what it does.
  connect(cancel, &QPushButton::clicked, this, [this] { QDialog::reject(); });
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, kGrid, 0, 0);
  row->addStretch();
  row->addWidget(action_);
  row->addWidget(cancel);
  return row;
}

void FormDialog::NoteFields() { fields_ = ValuesOf(*this); }

void FormDialog::showEvent(QShowEvent* event) {
  if (!fields_) {
    NoteFields();
  }
  if (!std::exchange(marksTexts_, true)) {
    SelectAllTextOnFocus(*this);
  }
  // The buttons at the foot stay on the screen.
  if (const QScreen* on = screen()) {
    resize(size().boundedTo(on->availableSize() - QSize(0, kTitleBar)));
  }
  QDialog::showEvent(event);
}

void FormDialog::reject() {
  const bool typed = HoldsData() && fields_ && *fields_ != ValuesOf(*this);
  if (!typed || Ask(Session().Shown, kThrowAwayQuestion)) {
    QDialog::reject();
  }
}

void FormDialog::FocusField(const QString& name) {
  if (auto* field = findChild<QWidget*>(name)) {
    field->setFocus(Qt::OtherFocusReason);
    SelectAllText(*field);
  }
}

void FormDialog::ShowRefusal(const core::Refusal& refusal) {
  Session().Shown.ShowMessage(refusal.Text, core::MessageButtons::Ok, refusal.Icon);
  FocusField(Shown(refusal.Field));
}

bool FormDialog::IsRead(const MomentEdit& field) {
  if (!field.IsUnderstood()) {
    ShowRefusal({Typed(field.Words()), core::MessageIcon::Information, Typed(field.objectName())});
  }
  return field.IsUnderstood();
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
