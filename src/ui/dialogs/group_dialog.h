// Adds a group or gives one another name.
#pragma once

#include "ui/base/form_dialog.h"

class QLineEdit;

namespace orvex::ui {

class GroupDialog final : public FormDialog {
  Q_OBJECT

 public:
  explicit GroupDialog(Workplace& place, QWidget* parent = nullptr);
  GroupDialog(Workplace& place, std::int32_t groupId, const QString& name,
              QWidget* parent = nullptr);

 private:
  void Build(const QString& title, const QString& action);
  void Save() override;

  std::int32_t groupId_ = 0;  // 0: a new one
  QLineEdit* name_ = nullptr;
};

}  // namespace orvex::ui
