// Edits the settings, in three pages.
#pragma once

#include "core/settings.h"
#include "ui/base/form_dialog.h"

class QListWidget;
class QStackedWidget;

namespace orvex::ui {

class GeneralPage;
class LookPage;
class OrbitsPage;
class ProfilePage;

class SettingsDialog final : public FormDialog {
  Q_OBJECT

 public:
  explicit SettingsDialog(Workplace& place, QWidget* parent = nullptr);

 private:
  void Build();
  void AddPage(const char* name, QWidget* page);
  void ShowPage(int page);
  void TurnToField(const QString& name);
  void FocusField(const QString& name) override;
  void Save() override;

  QListWidget* options_;
  QStackedWidget* pages_;
  GeneralPage* general_;
  OrbitsPage* orbits_;
  ProfilePage* profile_;
  LookPage* look_;
};

}  // namespace orvex::ui
