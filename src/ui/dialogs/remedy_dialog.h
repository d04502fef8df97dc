// Adds a remedy of a client or changes one.
#pragma once

#include "practice/remedies.h"
#include "ui/base/form_dialog.h"

class QComboBox;
class QPlainTextEdit;

namespace orvex::ui {

class DateEdit;

class RemedyDialog final : public FormDialog {
  Q_OBJECT

 public:
  // A new remedy of a client.
  static RemedyDialog* ForNew(Workplace& place, std::int32_t clientId, QWidget* parent = nullptr);

  // A stored one; null where it is gone, after the program's message.
  static RemedyDialog* ForEdit(Workplace& place, std::int32_t remedyId, QWidget* parent = nullptr);

 private:
  RemedyDialog(Workplace& place, const practice::RemedyForm& form, QWidget* parent);
  void Build(const QString& title, const QString& action);
  void Save() override;

  std::int32_t clientId_ = 0;  // of a new remedy
  std::int32_t remedyId_ = 0;  // of a stored one
  QComboBox* planet_;
  QPlainTextEdit* problem_;
  QPlainTextEdit* remedy_;
  DateEdit* date_;
};

}  // namespace orvex::ui
