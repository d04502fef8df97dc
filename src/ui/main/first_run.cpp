#include "ui/main/first_run.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/settings.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/pick_city_dialog.h"

namespace orvex::ui {

namespace {

void AddStep(QGridLayout& grid, int step, QLabel* text, QPushButton* button) {
  auto* number = new QLabel(WholeText(step));
  number->setFont(Theme::HeadingFont());
  text->setWordWrap(true);
  text->setMinimumWidth(44 * kGrid);
  grid.addWidget(number, step, 0, Qt::AlignTop);
  grid.addWidget(text, step, 1, Qt::AlignTop);
  if (button != nullptr) {
    grid.addWidget(button, step, 2, Qt::AlignTop);
  }
}

}  // namespace

FirstRun::FirstRun(Workplace& place, QAction& addClient, QAction& importBirths, QWidget* parent)
    : QWidget(parent),
      place_(place),
      city_(new QLabel),
      chooseCity_(new QPushButton(tr("Choose cit&y…"))),
      addClient_(new QPushButton(tr("Add a &first client…"))),
      import_(new QPushButton(tr("&Import files…"))) {
  setObjectName("firstRun");
  Build(addClient, importBirths);
  ShowCity();
}

void FirstRun::Build(QAction& addClient, QAction& importBirths) {
  chooseCity_->setObjectName("firstCity");
  addClient_->setObjectName("firstClient");
  city_->setObjectName("firstCityText");
  connect(chooseCity_, &QPushButton::clicked, this, [this] { ChooseCity(); });
  import_->setObjectName("firstImport");
  connect(addClient_, &QPushButton::clicked, &addClient, &QAction::trigger);
  connect(import_, &QPushButton::clicked, &importBirths, &QAction::trigger);
  auto* heading = new QLabel(tr("Welcome to Orvex+"));
  heading->setFont(Theme::HeadingFont());
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(kMargin);
  grid->setHorizontalSpacing(kMargin);
  grid->addWidget(heading, 0, 0, 1, 3);
  AddStep(*grid, 1, city_, chooseCity_);
  AddStep(*grid, 2,
          new QLabel(tr("Add your first client: a name, the date and time of birth or query, and "
                        "the city.")),
          addClient_);
  AddStep(*grid, 3,
          new QLabel(tr("The horoscope opens by itself. Later a double click on a client opens "
                        "it again.")),
          nullptr);
  AddStep(*grid, 4,
          new QLabel(tr("Are your clients in another program? Import the files that it writes: "
                        "AAF, .jhd, .mtx or CSV, also a whole folder.")),
          import_);
  auto* layout = new QVBoxLayout(this);
  layout->addStretch(1);
  layout->addLayout(grid);
  layout->addStretch(2);
  layout->setAlignment(grid, Qt::AlignHCenter);
}

void FirstRun::ShowCity() {
  city_->setText(tr("Say where you work: the sky view shows the sky over <b>%1</b>.")
                     .arg(Shown(place_.Session.State.UserCityName).toHtmlEscaped()));
}

void FirstRun::ChooseCity() {
  const std::optional<PickedCity> picked = PickCity(place_, this);
  if (!picked) {
    return;
  }
  core::SettingsForm form = core::OpenSettings(place_.Session);
  form.UserCityId = picked->Id;
  const core::SaveResult saved = core::SaveSettings(place_.Session, form);
  if (saved.Refused) {
    place_.Session.Shown.ShowMessage(saved.Refused->Text, core::MessageButtons::Ok,
                                     saved.Refused->Icon);
    return;
  }
  ShowCity();
  emit CityChanged();
}

}  // namespace orvex::ui
