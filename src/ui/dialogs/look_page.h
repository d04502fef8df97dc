// The page of the settings dialog for what the windows look like.
#pragma once

#include <QWidget>

#include "core/settings.h"

class QComboBox;
class QSpinBox;

namespace orvex::ui {

class LookPage final : public QWidget {
  Q_OBJECT

 public:
  LookPage();
  void Fill(const core::SettingsForm& form);
  void CopyInto(core::SettingsForm& form) const;

 private:
  QComboBox* degrees_;
  QSpinBox* textSize_;
  QComboBox* theme_;
};

}  // namespace orvex::ui
