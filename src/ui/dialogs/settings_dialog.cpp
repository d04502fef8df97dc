#include "ui/dialogs/settings_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/look_page.h"
#include "ui/dialogs/settings_pages.h"

namespace orvex::ui {

SettingsDialog::SettingsDialog(Workplace& place, QWidget* parent)
    : FormDialog(place, "settingsDialog", parent),
      options_(new QListWidget),
      pages_(new QStackedWidget),
      general_(new GeneralPage(place)),
      orbits_(new OrbitsPage(place)),
      profile_(new ProfilePage),
      look_(new LookPage) {
  Build();
  const core::SettingsForm form = core::OpenSettings(place.Session);
  general_->Fill(form);
  orbits_->Fill(form);
  profile_->Fill(form);
  look_->Fill(form);
  connect(orbits_, &OrbitsPage::FieldWanted, this, &SettingsDialog::FocusField);
  connect(options_, &QListWidget::currentRowChanged, this, &SettingsDialog::ShowPage);
  options_->setCurrentRow(0);
}

void SettingsDialog::Build() {
  options_->setObjectName("option");
  options_->setAccessibleName(tr("Option"));
  options_->setMaximumWidth(18 * kGrid);
  AddPage(core::kGeneralPage, general_);
  AddPage(core::kOrbitsPage, orbits_);
  AddPage(core::kProfilePage, profile_);
  AddPage(core::kLookPage, look_);
  auto* heading = new QLabel(tr("O&ption"));
  heading->setBuddy(options_);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kMargin);
  grid->addWidget(heading, 0, 0);
  grid->addWidget(options_, 1, 0);
  grid->addWidget(pages_, 0, 1, 2, 1);
  grid->setColumnStretch(1, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(grid, 1);
  layout->addLayout(MakeButtons(tr("&Update")));
  resize(84 * kGrid, 56 * kGrid);
}

void SettingsDialog::AddPage(const char* name, QWidget* page) {
  options_->addItem(name);
  pages_->addWidget(page);
}

void SettingsDialog::ShowPage(int page) {
  pages_->setCurrentIndex(page);
  setWindowTitle(tr("Settings - %1").arg(options_->item(page)->text()));
}

void SettingsDialog::TurnToField(const QString& name) {
  auto* field = findChild<QWidget*>(name);
  for (int page = 0; field != nullptr && page < pages_->count(); ++page) {
    if (pages_->widget(page)->isAncestorOf(field)) {
      options_->setCurrentRow(page);
    }
  }
}

void SettingsDialog::FocusField(const QString& name) {
  TurnToField(name);
  FormDialog::FocusField(name);
}

void SettingsDialog::Save() {
  core::SettingsForm form = core::OpenSettings(Session());
  general_->CopyInto(form);
  orbits_->CopyInto(form);
  profile_->CopyInto(form);
  look_->CopyInto(form);
  const core::SaveResult saved = core::SaveSettings(Session(), form);
  if (saved.Refused) {
    TurnToField(Shown(saved.Refused->Field));  // in sight before the message tells of it
  }
  Finish(saved);
}

}  // namespace orvex::ui
