#include "ui/main/search_form.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QToolButton>

#include "practice/groups.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/planet_box.h"
#include "ui/base/qt_text.h"
#include "ui/base/select_all_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

using practice::DateRange;
using practice::SearchMode;

QLabel* Caption(const QString& text, QWidget* buddy) {
  auto* caption = new QLabel(text);
  caption->setBuddy(buddy);
  return caption;
}

// Widgets side by side; what room is left stays at the right.
QWidget* SideBySide(std::initializer_list<QWidget*> widgets) {
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : widgets) {
    row->addWidget(widget);
  }
  row->addStretch();
  return box;
}

bool IsBetween(const QComboBox& dates) {
  return dates.currentIndex() == static_cast<int>(DateRange::Between);
}

}  // namespace

SearchForm::SearchForm(const core::Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      clients_(Named(new QRadioButton(tr("Cl&ients")), "findClients")),
      remedies_(Named(new QRadioButton(tr("R&emedies")), "findRemedies")),
      allGroups_(Named(new QRadioButton(tr("A&ll groups")), "allGroups")),
      selectedGroups_(Named(new QRadioButton(tr("Selected gr&oups")), "selectedGroups")),
      groups_(Named(new QListWidget, "groups")),
      gender_(Named(new QComboBox, "gender")),
      ascendant_(Named(new QComboBox, "ascendant")),
      retrograde_(Named(new QComboBox, "retrograde")),
      planetCaption_(new QLabel(tr("For &Planet:"))),
      forPlanet_(Named(new QComboBox, "forPlanet")),
      name_(Named(new QLineEdit, "searchName")),
      textCaption_(Named(new QLabel, "textCaption")),
      text_(Named(new QLineEdit, "searchText")),
      dateCaption_(Named(new QLabel, "dateCaption")),
      dateRange_(Named(new QComboBox, "dateRange")),
      from_(new DateEdit("dateFrom")),
      toCaption_(new QLabel(tr("to"))),
      to_(new DateEdit("dateTo")) {
  FillChoices();
  Build();
  LoadGroups();
  FollowMode();
  FollowRanges();
  Connect();
  SelectAllTextOnFocus(*this);
}

void SearchForm::FillChoices() {
  gender_->addItem(tr("Any"), "");
  gender_->addItem(tr("Male"), "M");
  gender_->addItem(tr("Female"), "F");
  gender_->addItem(tr("Other"), "O");
  ascendant_->addItem(tr("Any"), 0);
  for (const core::SignRow& sign : session_.Reference.Signs) {
    ascendant_->addItem(Shown(sign.Zodiac), sign.Rashi);
  }
  retrograde_->addItem(tr("Ignore"), 0);
  for (const core::PlanetInfo& planet : session_.Reference.Planets) {
    if (planet.Id >= practice::kFirstRetrogradeId && planet.Id <= practice::kLastRetrogradeId) {
      retrograde_->addItem(Shown(planet.PlanetName), planet.Id);
    }
  }
  forPlanet_->addItem(tr("Any"));
  AddPlanetsByName(*forPlanet_, session_.Reference);
  dateRange_->addItems({tr("Any"), tr("After"), tr("Before"), tr("Between")});
  for (DateEdit* date : {from_, to_}) {
    date->SetDate(session_.Time.Today());
  }
}

void SearchForm::Build() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kMargin);
  grid->addWidget(BuildModes(), 0, 0, 1, 2);
  grid->addWidget(BuildGroups(), 1, 0, Qt::AlignTop);
  auto* fields = new QGridLayout;
  BuildFields(*fields);
  grid->addLayout(fields, 1, 1, Qt::AlignTop);
  grid->setColumnStretch(1, 1);
}

QWidget* SearchForm::BuildModes() {
  clients_->setChecked(true);
  auto* modes = new QButtonGroup(this);
  modes->addButton(clients_);
  modes->addButton(remedies_);
  return SideBySide({new QLabel(tr("Find:")), clients_, remedies_});
}

QWidget* SearchForm::BuildGroups() {
  groups_->setAccessibleName(tr("Groups to search"));
  groups_->setMinimumWidth(18 * kGrid);
  groups_->setMaximumWidth(26 * kGrid);
  groups_->setFixedHeight(14 * kGrid);
  allGroups_->setChecked(true);
  auto* all = Named(new QToolButton, "tickAll");
  all->setText(tr("Tick all"));
  auto* none = Named(new QToolButton, "tickNone");
  none->setText(tr("Tick none"));
  connect(all, &QToolButton::clicked, this, [this] { TickAll(Qt::Checked); });
  connect(none, &QToolButton::clicked, this, [this] { TickAll(Qt::Unchecked); });
  for (QWidget* widget : std::initializer_list<QWidget*>{groups_, all, none}) {
    connect(selectedGroups_, &QRadioButton::toggled, widget, &QWidget::setVisible);
    widget->hide();
  }
  auto* box = new QWidget;
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGrid / 2);
  column->addWidget(allGroups_);
  column->addWidget(selectedGroups_);
  column->addWidget(groups_);
  column->addWidget(SideBySide({all, none}));
  return box;
}

void SearchForm::BuildFields(QGridLayout& grid) {
  name_->setClearButtonEnabled(true);
  text_->setClearButtonEnabled(true);
  planetCaption_->setBuddy(forPlanet_);
  textCaption_->setBuddy(text_);
  dateCaption_->setBuddy(dateRange_);
  grid.setSpacing(kGrid);
  grid.addWidget(Caption(tr("&Name:"), name_), 0, 0);
  grid.addWidget(name_, 0, 1);
  grid.addWidget(textCaption_, 0, 2);
  grid.addWidget(text_, 0, 3);
  grid.addWidget(dateCaption_, 1, 0);
  grid.addWidget(BuildDates(), 1, 1, 1, 3);
  grid.addWidget(Caption(tr("Gen&der:"), gender_), 2, 0);
  grid.addWidget(gender_, 2, 1);
  grid.addWidget(Caption(tr("&Ascendant:"), ascendant_), 2, 2);
  grid.addWidget(ascendant_, 2, 3);
  grid.addWidget(Caption(tr("Retrograde:"), retrograde_), 3, 0);
  grid.addWidget(retrograde_, 3, 1);
  grid.addWidget(planetCaption_, 3, 2);
  grid.addWidget(forPlanet_, 3, 3);
  grid.setColumnStretch(1, 1);
  grid.setColumnStretch(3, 1);
}

QWidget* SearchForm::BuildDates() {
  // Showing the dates moves nothing.
  for (QWidget* widget : std::initializer_list<QWidget*>{from_, toCaption_, to_}) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
  }
  from_->setAccessibleName(tr("From date"));
  to_->setAccessibleName(tr("To date"));
  // Below the dates, so that a field keeps its place while it is typed into.
  auto* dates = new QWidget;
  auto* grid = new QGridLayout(dates);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(SideBySide({dateRange_, from_, toCaption_, to_}), 0, 0);
  grid->addWidget(BuildDateWords(), 1, 0);
  return dates;
}

QWidget* SearchForm::BuildDateWords() {
  QLabel* from = from_->MakeEcho();
  QLabel* to = to_->MakeEcho();
  connect(dateRange_, &QComboBox::currentIndexChanged, from, [this, from, to] {
    from->setVisible(dateRange_->currentIndex() != static_cast<int>(DateRange::Any));
    to->setVisible(IsBetween(*dateRange_));
  });
  for (QLabel* words : {from, to}) {
    words->setWordWrap(false);
    words->hide();
  }
  return SideBySide({from, to});
}

void SearchForm::Connect() {
  connect(remedies_, &QRadioButton::toggled, this, [this] {
    FollowMode();
    emit ModeChanged();
  });
  connect(dateRange_, &QComboBox::currentIndexChanged, this, &SearchForm::FollowRanges);
}

void SearchForm::FollowMode() {
  const bool clients = Mode() == SearchMode::Clients;
  textCaption_->setText(clients ? tr("Co&mments:") : tr("Proble&m/Remedy:"));
  dateCaption_->setText(clients ? tr("&Birth Date:") : tr("Remed&y Date:"));
  planetCaption_->setVisible(!clients);
  forPlanet_->setVisible(!clients);
}

void SearchForm::FollowRanges() {
  const bool between = IsBetween(*dateRange_);
  from_->setVisible(dateRange_->currentIndex() != static_cast<int>(DateRange::Any));
  toCaption_->setVisible(between);
  to_->setVisible(between);
}

void SearchForm::LoadGroups() {
  groups_->clear();
  const core::Table groups = practice::LoadGroups(session_);
  for (const core::Row& group : groups.Rows) {
    auto* item = new QListWidgetItem(Shown(group.Cells.front().Text), groups_);
    item->setData(Qt::UserRole, IdOfTag(group.Tag).value_or(0));
    item->setCheckState(Qt::Checked);
  }
  if (groups.Rows.empty()) {
    (new QListWidgetItem(practice::kNoGroups, groups_))->setFlags(Qt::NoItemFlags);
  } else {
    groups_->setCurrentRow(0);
  }
}

void SearchForm::TickAll(Qt::CheckState state) {
  for (int row = 0; row < groups_->count(); ++row) {
    if (groups_->item(row)->flags().testFlag(Qt::ItemIsUserCheckable)) {
      groups_->item(row)->setCheckState(state);
    }
  }
}

std::vector<std::int32_t> SearchForm::TickedGroups() const {
  std::vector<std::int32_t> ids;
  for (int row = 0; row < groups_->count(); ++row) {
    if (groups_->item(row)->checkState() == Qt::Checked) {
      ids.push_back(groups_->item(row)->data(Qt::UserRole).toInt());
    }
  }
  return ids;
}

SearchMode SearchForm::Mode() const {
  return remedies_->isChecked() ? SearchMode::Remedies : SearchMode::Clients;
}

practice::SearchFilter SearchForm::Filter() const {
  practice::SearchFilter filter;
  filter.Mode = Mode();
  if (selectedGroups_->isChecked()) {
    filter.GroupIds = TickedGroups();
  }
  filter.Gender = Typed(gender_->currentData().toString());
  filter.RetrogradePlanetId = retrograde_->currentData().toInt();
  filter.AscendantRashi = ascendant_->currentData().toInt();
  filter.Name = Typed(name_->text());
  filter.Text = Typed(text_->text());
  filter.Dates = static_cast<DateRange>(dateRange_->currentIndex());
  filter.From = from_->Date().value_or(filter.From);
  filter.To = to_->Date().value_or(filter.To);
  if (forPlanet_->currentData().isValid()) {
    filter.ForPlanetId = forPlanet_->currentData().toInt();
  }
  return filter;
}

DateEdit* SearchForm::UnreadDate() const {
  for (DateEdit* date : {from_, to_}) {
    if (date->isVisibleTo(this) && date->isEnabled() && !date->IsUnderstood()) {
      return date;
    }
  }
  return nullptr;
}

void SearchForm::FocusText() {
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void SearchForm::FocusGroups() { groups_->setFocus(Qt::OtherFocusReason); }

void SearchForm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit SearchRequested();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace orvex::ui
