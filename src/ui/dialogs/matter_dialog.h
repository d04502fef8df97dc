// Adds a matter or changes one: its name, its houses, where they come from.
#pragma once

#include "judgement/matters.h"
#include "ui/base/form_dialog.h"

class QLineEdit;

namespace orvex::ui {

class MatterDialog final : public FormDialog {
  Q_OBJECT

 public:
  static MatterDialog* ForNew(Workplace& place, QWidget* parent = nullptr);

  // Null where the matter is gone, after the program's message.
  static MatterDialog* ForEdit(Workplace& place, std::int32_t matterId, QWidget* parent = nullptr);

 private:
  MatterDialog(Workplace& place, std::int32_t matterId, QWidget* parent);
  void Build(const QString& title, const QString& action);
  void Fill(const judgement::MatterForm& form);
  void Save() override;

  std::int32_t matterId_;  // 0: a new one
  QLineEdit* name_;
  QLineEdit* main_;
  QLineEdit* supporting_;
  QLineEdit* denying_;
  QLineEdit* source_;
};

}  // namespace orvex::ui
