#include "ui/transit/find_transit_dialog.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>

#include "transit/hour_table.h"
#include "transit/monthly_grid.h"
#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/message_boxes.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/shown_page.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/base/window_print.h"

namespace orvex::ui {

namespace {

constexpr int kPadas = 4;
constexpr qint64 kEventsEvery = 30;  // milliseconds

void Fill(QComboBox& list, const std::vector<std::string>& entries) {
  for (const std::string& entry : entries) {
    list.addItem(Shown(entry));
  }
}

}  // namespace

FindTransitDialog::FindTransitDialog(Workplace& place, QWidget* parent)
    : FormDialog(place, "findTransitDialog", parent),
      planet_(Named(new QComboBox, "planet")),
      from_(new DateEdit("from")),
      byDegree_(Named(new QRadioButton(tr("&Degree")), "byDegree")),
      byNakshatra_(Named(new QRadioButton(tr("&Nakshatra")), "byNakshatra")),
      byRashi_(Named(new QRadioButton(tr("&Rashi")), "byRashi")),
      degree_(Named(new QLineEdit, "Degree")),
      nakshatra_(Named(new QComboBox, "Nakshatra")),
      pada_(Named(new QComboBox, "Pada")),
      rashi_(Named(new QComboBox, "Rashi")),
      find_(Named(new QPushButton(tr("&Find")), "find")),
      cancel_(Named(new QPushButton(tr("&Cancel")), "cancel")),
      sync_(Named(new QPushButton(tr("&Sync to grid")), "sync")),
      result_(MakeCaptionLabel("result")),
      status_(MakeCaptionLabel("status")),
      searched_(MakeCaptionLabel("searched")),
      progress_(Named(new QProgressBar, "progress")),
      hours_(Named(new TableView, "hours")) {
  setWindowTitle(tr("Find Transit"));
  FillLists();
  LayOut();
  Connect();
  FollowKind();
  OfferPrint(place, *this);
  if (!place.Layout.RestoreWindow(*this)) {
    resize(96 * kGrid, 80 * kGrid);
  }
}

void FindTransitDialog::FillLists() {
  const transit::FindChoices choices = transit::ChoicesOf(Session().Reference);
  Fill(*planet_, choices.Planets);
  Fill(*nakshatra_, choices.Stars);
  Fill(*rashi_, choices.Zodiacs);
  for (int pada = 1; pada <= kPadas; ++pada) {
    pada_->addItem("Pada " + WholeText(pada));
  }
  from_->SetDate(Session().Time.Today());
  byDegree_->setChecked(true);
}

void FindTransitDialog::LayOut() {
  result_->setText(transit::kFindPrompt);
  result_->setFont(Theme::HeadingFont());
  result_->setWordWrap(true);
  status_->setText("Ready");
  LeaveUnprinted(*status_);
  LeaveUnprinted(*searched_);
  hours_->setAccessibleName(tr("Hours of the date"));
  hours_->setSortingEnabled(false);
  hours_->verticalHeader()->setDefaultSectionSize(hours_->fontMetrics().height() + kGrid / 2);
  hours_->SetEmptyText(tr("The hours of the date that is found stand here."));
  hours_->RememberWidths(Place().Layout);
  OfferExport(Place(), *hours_);
  auto* foot = new QHBoxLayout;
  foot->addWidget(status_);
  foot->addStretch();
  foot->addWidget(searched_);
  foot->addWidget(progress_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(BuildTarget());
  layout->addLayout(BuildActions());
  layout->addWidget(result_);
  layout->addWidget(hours_, 1);
  layout->addLayout(foot);
}

QGridLayout* FindTransitDialog::BuildTarget() {
  constexpr int kStretch = 3;
  const auto label = [](const QString& text, QWidget* buddy) {
    auto* made = new QLabel(text);
    made->setBuddy(buddy);
    return made;
  };
  degree_->setAccessibleName(tr("Degree"));
  degree_->setPlaceholderText(tr("0 to 360"));
  nakshatra_->setAccessibleName(tr("Nakshatra"));
  pada_->setAccessibleName(tr("Pada"));
  rashi_->setAccessibleName(tr("Rashi"));
  auto* grid = new QGridLayout;
  grid->addWidget(label(tr("&Planet"), planet_), 0, 0);
  grid->addWidget(planet_, 0, 1);
  grid->addWidget(label(tr("Fr&om"), from_), 1, 0);
  grid->addWidget(from_, 1, 1);
  grid->addWidget(from_->MakeEcho(), 1, 2, 1, 2);
  grid->addWidget(byDegree_, 2, 0);
  grid->addWidget(degree_, 2, 1);
  grid->addWidget(byNakshatra_, 3, 0);
  grid->addWidget(nakshatra_, 3, 1);
  grid->addWidget(pada_, 3, 2);
  grid->addWidget(byRashi_, 4, 0);
  grid->addWidget(rashi_, 4, 1);
  grid->setColumnStretch(kStretch, 1);
  return grid;
}

QHBoxLayout* FindTransitDialog::BuildActions() {
  find_->setDefault(true);
  cancel_->setAutoDefault(false);
  cancel_->setEnabled(false);
  sync_->setEnabled(false);
  progress_->setRange(0, 0);
  progress_->setMaximumWidth(16 * kGrid);
  QSizePolicy keepsPlace = progress_->sizePolicy();
  keepsPlace.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(keepsPlace);
  progress_->hide();
  auto* row = new QHBoxLayout;
  row->addWidget(find_);
  row->addWidget(cancel_);
  row->addWidget(sync_);
  row->addStretch();
  return row;
}

void FindTransitDialog::Connect() {
  for (QRadioButton* kind : {byDegree_, byNakshatra_, byRashi_}) {
    connect(kind, &QRadioButton::toggled, this, &FindTransitDialog::FollowKind);
  }
  connect(find_, &QPushButton::clicked, this, [this] { Save(); });
  connect(cancel_, &QPushButton::clicked, this, &FindTransitDialog::CancelFind);
  connect(sync_, &QPushButton::clicked, this, &FindTransitDialog::SyncToGrid);
}

void FindTransitDialog::FollowKind() {
  degree_->setEnabled(byDegree_->isChecked());
  nakshatra_->setEnabled(byNakshatra_->isChecked());
  pada_->setEnabled(byNakshatra_->isChecked());
  rashi_->setEnabled(byRashi_->isChecked());
}

transit::FindForm FindTransitDialog::ReadForm() {
  using transit::TargetKind;
  transit::FindForm form;
  form.Body = transit::PlanetOfName(Typed(planet_->currentText())).value_or(transit::Planet::Sun);
  form.From = from_->Date().value_or(Session().Time.Today());
  form.Kind = byDegree_->isChecked()      ? TargetKind::Degree
              : byNakshatra_->isChecked() ? TargetKind::Nakshatra
                                          : TargetKind::Rashi;
  form.DegreeText = Typed(degree_->text());
  form.StarName = Typed(nakshatra_->currentText());
  form.Pada = pada_->currentIndex() + 1;
  form.Zodiac = Typed(rashi_->currentText());
  return form;
}

void FindTransitDialog::Save() {
  if (!IsRead(*from_)) {
    return;
  }
  const transit::FindForm form = ReadForm();
  const transit::TargetResult target = transit::TargetOf(Session().Reference, form);
  if (target.Refused) {
    ShowRefusal(*target.Refused);
    return;
  }
  Begin();
  End(transit::FindTransit(Session(), form, target.Degree, std::nullopt,
                           [this](core::DateTime date) { return GoOn(date); }));
}

void FindTransitDialog::Begin() {
  searching_ = true;
  searchCanceled_ = false;
  sinceEvents_.invalidate();
  result_->setText(transit::kFindWaiting);
  status_->setText(transit::kFindWorking);
  planet_->setEnabled(false);
  sync_->setEnabled(false);
  cancel_->setEnabled(true);
  cancel_->setFocus();
  find_->setEnabled(false);
  progress_->show();
}

// Lets the user and the timers in; the search goes on until it was canceled.
bool FindTransitDialog::GoOn(core::DateTime date) {
  if (!sinceEvents_.isValid() || sinceEvents_.hasExpired(kEventsEvery)) {
    searched_->setText(Shown(core::LongDateText(date, false)));
    QCoreApplication::processEvents();
    sinceEvents_.start();
  }
  return !searchCanceled_;
}

void FindTransitDialog::End(const transit::FindResult& result) {
  searching_ = false;
  find_->setEnabled(true);
  planet_->setEnabled(true);
  cancel_->setEnabled(false);
  progress_->hide();
  searched_->clear();
  result_->setText(Shown(result.Result));
  status_->setText(Shown(result.Status));
  hours_->setAccessibleName(planet_->currentText() + ' ' +
                            Shown(core::LongDateText(result.Hour, false)));
  hours_->SetTable(result.Hours);
  if (result.End == transit::SearchEnd::Found) {
    tag_ = result.Tag;
    hours_->SelectTag(core::StoredDateTimeText(result.Hour));
    sync_->setEnabled(true);
    sync_->setFocus();
  } else {
    find_->setFocus();
  }
  if (closeAfter_) {
    QDialog::reject();
  }
}

void FindTransitDialog::CancelFind() { searchCanceled_ = true; }

void FindTransitDialog::SyncToGrid() {
  const auto mark = transit::SyncToGrid(tag_);
  if (!mark || mark->Year < transit::kFirstGridYear || mark->Year > transit::kLastGridYear) {
    Inform(Session().Shown, "The grid shows the years 1500 to 2500.");
    return;
  }
  mark_ = *mark;
  accept();
}

void FindTransitDialog::reject() {
  if (searching_) {
    CancelFind();
    return;
  }
  QDialog::reject();
}

void FindTransitDialog::closeEvent(QCloseEvent* event) {
  closeAfter_ = searching_;
  FormDialog::closeEvent(event);
}

void FindTransitDialog::hideEvent(QHideEvent* event) {
  Place().Layout.KeepWindow(*this);
  FormDialog::hideEvent(event);
}

}  // namespace orvex::ui
