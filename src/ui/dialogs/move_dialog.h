// Moves a client to another group.
#pragma once

#include "ui/base/form_dialog.h"

class QComboBox;

namespace orvex::ui {

class MoveDialog final : public FormDialog {
  Q_OBJECT

 public:
  MoveDialog(Workplace& place, std::int32_t clientId, const QString& clientName,
             const QString& groupName, QWidget* parent = nullptr);

 private:
  void Save() override;

  std::int32_t clientId_;
  QComboBox* groups_;
};

}  // namespace orvex::ui
