#include "ui/dialogs/settings_pages.h"

#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <span>

#include "practice/groups.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/pick_city_dialog.h"

namespace orvex::ui {

namespace {

template <typename Widget>
Widget* Named(const char* name) {
  auto* widget = new Widget;
  widget->setObjectName(name);
  return widget;
}

QComboBox* ChoiceBox(const char* name, std::span<const core::SettingChoice> choices) {
  auto* box = Named<QComboBox>(name);
  for (const core::SettingChoice& choice : choices) {
    box->addItem(choice.Text);
  }
  return box;
}

QWidget* BesideButton(QWidget* field, QPushButton* button) {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(field, 1);
  layout->addWidget(button);
  return row;
}

QPushButton* PlainButton(const QString& text, const char* name) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

GeneralPage::GeneralPage(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      nodes_(ChoiceBox("RahuKetuCalculation", core::kNodeChoices)),
      chartType_(ChoiceBox("DefaultChartType", core::kChartTypeChoices)),
      degree_(ChoiceBox("StatusBarDegreeCalc", core::kDegreeChoices)),
      sort_(ChoiceBox("SortByField", core::kSortChoices)),
      birthMoment_(ChoiceBox("BirthMoment", core::kBirthMomentChoices)),
      group_(Named<QComboBox>("ICGroupID")),
      chartPath_(Named<QLineEdit>("ChartPath")),
      city_(Named<QLabel>("UserCityID")) {
  FillGroups();
  Build();
}

void GeneralPage::Build() {
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Rahu/Ketu calculation:"), nodes_);
  form->addRow(tr("Chart &type:"), chartType_);
  form->addRow(tr("Status bar &degree:"), degree_);
  form->addRow(tr("&Sort by:"), sort_);
  form->addRow(tr("Chart path:"), BuildChartPath());
  form->addRow(tr("Current city:"), BuildCity());
  form->addRow(tr("&Instant chart group:"), group_);
  form->addRow(tr("&Births west of Greenwich:"), birthMoment_);
  form->addRow(QString(), BuildMomentWords());
}

QWidget* GeneralPage::BuildChartPath() {
  chartPath_->setAccessibleName(tr("Chart path"));
  chartPath_->setPlaceholderText(Shown(place_.Session.Place.ChartFolder().string()));
  QPushButton* button = PlainButton(tr("Bro&wse…"), "chooseChartPath");
  connect(button, &QPushButton::clicked, this, [this] { ChooseChartPath(); });
  return BesideButton(chartPath_, button);
}

QWidget* GeneralPage::BuildCity() {
  city_->setTextFormat(Qt::PlainText);
  QPushButton* button = PlainButton(tr("C&hange…"), "chooseCity");
  connect(button, &QPushButton::clicked, this, [this] { ChooseCity(); });
  return BesideButton(city_, button);
}

QLabel* GeneralPage::BuildMomentWords() {
  auto* words = Named<QLabel>("birthMomentWords");
  words->setText(
      tr("The moment of the stored chart: by the local mean time of the longitude, or by the "
         "clock's time less its offset, as the sky was. A chart that is stored changes only when "
         "its client is saved again."));
  words->setWordWrap(true);
  birthMoment_->setAccessibleDescription(words->text());
  return words;
}

void GeneralPage::FillGroups() {
  group_->addItem(tr("None"), 0);
  for (const core::Row& group : practice::LoadGroups(place_.Session).Rows) {
    group_->addItem(Shown(group.Cells.front().Text), IdOfTag(group.Tag).value_or(0));
  }
}

void GeneralPage::ChooseChartPath() {
  std::filesystem::path start = Typed(chartPath_->text());
  if (start.empty()) {
    start = place_.Session.Place.ChartFolder();
  }
  const auto chosen = place_.Files.ChooseFolder(this, "Select Chart Path", start);
  if (chosen) {
    chartPath_->setText(Shown(chosen->string()));
  }
}

void GeneralPage::ChooseCity() {
  if (const std::optional<PickedCity> city = PickCity(place_, this)) {
    cityId_ = city->Id;
    city_->setText(Shown(city->Name));
  }
}

void GeneralPage::Fill(const core::SettingsForm& form) {
  nodes_->setCurrentText(Shown(form.RahuKetuCalculation));
  chartType_->setCurrentText(Shown(form.DefaultChartType));
  degree_->setCurrentText(Shown(form.StatusBarDegreeCalc));
  sort_->setCurrentText(Shown(form.SortBy));
  birthMoment_->setCurrentText(Shown(form.BirthMoment));
  chartPath_->setText(Shown(form.ChartPath));
  cityId_ = form.UserCityId;
  city_->setText(Shown(form.UserCityName));
  group_->setCurrentIndex(std::max(0, group_->findData(form.InstantChartGroupId)));
}

void GeneralPage::CopyInto(core::SettingsForm& form) const {
  form.RahuKetuCalculation = Typed(nodes_->currentText());
  form.DefaultChartType = Typed(chartType_->currentText());
  form.StatusBarDegreeCalc = Typed(degree_->currentText());
  form.SortBy = Typed(sort_->currentText());
  form.BirthMoment = Typed(birthMoment_->currentText());
  form.ChartPath = Typed(chartPath_->text());
  form.UserCityId = cityId_;
  form.UserCityName = Typed(city_->text());
  form.InstantChartGroupId = group_->currentData().toInt();
}

OrbitsPage::OrbitsPage(Workplace& place, QWidget* parent) : QWidget(parent), place_(place) {
  auto* form = new QFormLayout(this);
  for (std::size_t aspect = 0; aspect < core::kAspectCount; ++aspect) {
    orbs_[aspect] = Named<QLineEdit>(core::kAspects[aspect].OrbColumn);
    orbs_[aspect]->setMaximumWidth(10 * kGrid);
    orbs_[aspect]->installEventFilter(this);
    captions_[aspect] = new QLabel;
    captions_[aspect]->setObjectName(QString("caption_") + core::kAspects[aspect].OrbColumn);
    captions_[aspect]->setBuddy(orbs_[aspect]);
    form->addRow(captions_[aspect], orbs_[aspect]);
  }
  QPushButton* reset = PlainButton(tr("&Reset"), "resetOrbs");
  // A click on it asks nothing of the orb that is left: the box would swallow the click.
  reset->setFocusPolicy(Qt::TabFocus);
  connect(reset, &QPushButton::clicked, this, [this] { ResetOrbs(); });
  form->addRow(QString(), reset);
}

void OrbitsPage::Fill(const core::SettingsForm& form) {
  for (std::size_t aspect = 0; aspect < core::kAspectCount; ++aspect) {
    orbs_[aspect]->setText(Shown(form.Orbs[aspect]));
    captions_[aspect]->setText(Shown(core::OrbCaption(aspect, form.Orbs[aspect])));
  }
}

void OrbitsPage::CopyInto(core::SettingsForm& form) const {
  for (std::size_t aspect = 0; aspect < core::kAspectCount; ++aspect) {
    form.Orbs[aspect] = Typed(orbs_[aspect]->text());
  }
}

bool OrbitsPage::eventFilter(QObject* field, QEvent* event) {
  const auto found = std::find(orbs_.begin(), orbs_.end(), field);
  if (event->type() == QEvent::FocusOut && found != orbs_.end()) {
    const Qt::FocusReason reason = dynamic_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
      const auto aspect = static_cast<std::size_t>(found - orbs_.begin());
      // After the event: a message box may not open while the focus is on its way.
      QTimer::singleShot(0, this, [this, aspect] { CheckOrb(aspect); });
    }
  }
  return QWidget::eventFilter(field, event);
}

void OrbitsPage::CheckOrb(std::size_t aspect) {
  if (isAsking_ || !window()->isVisible() || TurnsBack()) {
    return;
  }
  const std::string typed = Typed(orbs_[aspect]->text());
  const std::optional<core::Refusal> refused = core::CheckOrb(aspect, typed);
  if (!refused) {
    captions_[aspect]->setText(Shown(core::OrbCaption(aspect, typed)));
    return;
  }
  isAsking_ = true;
  Complain(place_.Session.Shown, refused->Text);
  isAsking_ = false;
  emit FieldWanted(orbs_[aspect]->objectName());
  orbs_[aspect]->selectAll();
}

// The focus is on its way out of the dialog or to the defaults, whatever was typed.
bool OrbitsPage::TurnsBack() const {
  const QWidget* focus = window()->focusWidget();
  return focus != nullptr &&
         (focus->objectName() == "cancel" || focus->objectName() == "resetOrbs");
}

void OrbitsPage::ResetOrbs() {
  if (Ask(place_.Session.Shown, core::kResetOrbsQuestion)) {
    core::SettingsForm defaults;
    defaults.Orbs = core::DefaultOrbs();
    Fill(defaults);
  }
}

ProfilePage::ProfilePage(QWidget* parent)
    : QWidget(parent),
      name_(Named<QLineEdit>("AstrologerName")),
      organization_(Named<QLineEdit>("AstrologerOrganization")),
      contact_(Named<QPlainTextEdit>("AstrologerContactDetails")) {
  contact_->setTabChangesFocus(true);
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Name:"), name_);
  form->addRow(tr("&Organization:"), organization_);
  form->addRow(tr("&Contact details:"), contact_);
}

void ProfilePage::Fill(const core::SettingsForm& form) {
  name_->setText(Shown(form.AstrologerName));
  organization_->setText(Shown(form.AstrologerOrganization));
  contact_->setPlainText(Shown(form.AstrologerContactDetails));
}

void ProfilePage::CopyInto(core::SettingsForm& form) const {
  form.AstrologerName = Typed(name_->text());
  form.AstrologerOrganization = Typed(organization_->text());
  form.AstrologerContactDetails = Typed(contact_->toPlainText());
}

}  // namespace orvex::ui
