#include "ui/transit/transit_details_dialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>

#include "ui/base/export_table.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/base/window_print.h"

namespace orvex::ui {

namespace {

TableView* TimeTable(Workplace& place, const char* name) {
  auto* table = new TableView;
  table->setObjectName(name);
  table->setSortingEnabled(false);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + kGrid / 2);
  table->RememberWidths(place.Layout);
  OfferExport(place, *table);
  return table;
}

}  // namespace

TransitDetailsDialog::TransitDetailsDialog(Workplace& place, transit::Planet planet,
                                           core::DateTime date, QWidget* parent)
    : QDialog(parent),
      place_(place),
      title_(MakeCaptionLabel("detailsTitle")),
      previous_(MakeButton("previousDay", {})),
      next_(MakeButton("nextDay", {})),
      today_(new LinkButton("today")),
      backToHours_(new LinkButton("backToHours")),
      hour_(MakeCaptionLabel("hour")),
      tables_(new QStackedWidget),
      hours_(TimeTable(place, "hours")),
      minutes_(TimeTable(place, "minutes")),
      changes_(TimeTable(place, "changes")),
      picker_(new TimeEdit("picker", TimeEdit::Shows::Minutes)),
      go_(MakeButton("go", tr("&Go"))),
      sky_(new SkyBoard(place, SkyBoard::Side::Horas)) {
  setObjectName("transitDetails");
  setModal(true);
  LayOut();
  Connect();
  picker_->SetTime(core::TimeOfDayOf(place.Session.Time.Now()));
  ShowDay(planet, date);
  hours_->setFocus();
  OfferPrint(place_, *this);
  if (!place_.Layout.RestoreWindow(*this)) {
    resize(164 * kGrid, 85 * kGrid);
  }
}

void TransitDetailsDialog::LayOut() {
  auto* halves = new QSplitter(Qt::Horizontal);
  halves->setObjectName("detailsHalves");
  halves->addWidget(BuildPlanet());
  halves->addWidget(BuildSky());
  halves->setStretchFactor(0, 1);
  halves->setStretchFactor(1, 1);
  halves->setSizes({68 * kGrid, 94 * kGrid});
  place_.Layout.Remember(*halves);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(halves);
}

QWidget* TransitDetailsDialog::BuildPlanet() {
  title_->setFont(Theme::HeadingFont());
  title_->setWordWrap(true);
  today_->setText(tr("&Today"));
  backToHours_->setText(tr("&Back to the hours"));
  hours_->setToolTip(tr("A click on an hour shows its minutes"));
  tables_->addWidget(hours_);
  tables_->addWidget(minutes_);
  auto* days = new QHBoxLayout;
  // A small window cuts the dates, which the tips tell.
  for (QPushButton* day : {previous_, next_}) {
    day->setMinimumWidth(16 * kGrid);
  }
  days->addWidget(previous_);
  days->addWidget(next_);
  days->addStretch();
  auto* hour = new QHBoxLayout;
  hour->addWidget(hour_);
  hour->addWidget(backToHours_);
  hour->addStretch();
  hour->addWidget(today_);
  auto* half = new QWidget;
  auto* column = new QVBoxLayout(half);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(title_);
  column->addLayout(days);
  column->addLayout(hour);
  auto* changes = MakeHeading(tr("Changes of this day"));
  changes->setBuddy(changes_);
  changes_->setAccessibleName(changes->text());
  changes_->SetEmptyText(tr("No change of sign, star or sub on this day"));
  column->addWidget(tables_, 3);
  column->addWidget(changes);
  column->addWidget(changes_, 1);
  return half;
}

QWidget* TransitDetailsDialog::BuildSky() {
  picker_->setAccessibleName(tr("Time of the sky"));
  go_->setDefault(true);
  auto* label = new QLabel(tr("&Sky at"));
  label->setBuddy(picker_);
  auto* instant = new QHBoxLayout;
  instant->addWidget(label);
  instant->addWidget(picker_);
  instant->addWidget(go_);
  instant->addWidget(picker_->MakeEcho(), 1);
  auto* half = new QWidget;
  auto* column = new QVBoxLayout(half);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(instant);
  column->addWidget(sky_, 1);
  return half;
}

void TransitDetailsDialog::Connect() {
  connect(previous_, &QPushButton::clicked, this, [this] { Move(-1); });
  connect(next_, &QPushButton::clicked, this, [this] { Move(1); });
  connect(today_, &QPushButton::clicked, this,
          [this] { ShowDay(Subject().Body, place_.Session.Time.Today()); });
  connect(go_, &QPushButton::clicked, this, &TransitDetailsDialog::ShowSky);
  connect(backToHours_, &QPushButton::clicked, this, &TransitDetailsDialog::ShowHours);
  connect(hours_, &TableView::clicked, this, [this](const QModelIndex& index) {
    ShowMinutes(Shown(hours_->Model().TagOf(index.row())));
  });
  connect(hours_, &TableView::TagActivated, this, &TransitDetailsDialog::ShowMinutes);
  const auto bind = [this](const char* name, QPushButton* button, const QString& words) {
    const QKeySequence keys = KeysOf(kTransits, name);
    connect(new QShortcut(keys, this), &QShortcut::activated, button, &QPushButton::click);
    button->setToolTip(WithKeys(words, keys));
  };
  bind("previousDay", previous_, {});
  bind("nextDay", next_, {});
  bind("backToHours", backToHours_, tr("Back to the hours"));
}

void TransitDetailsDialog::ShowDay(transit::Planet planet, core::DateTime date) {
  const transit::TransitDetails details =
      transit::GetTransitForPlanet(place_.Session, planet, date);
  tag_ = details.Tag;
  setWindowTitle(Shown(details.Title));
  title_->setText(Shown(details.Title));
  hours_->setAccessibleName(Shown(details.Title));
  hours_->SetTable(details.Hours);
  previous_->setText(Shown(details.PreviousDay.Caption));
  previous_->setToolTip(WithKeys(previous_->text(), KeysOf(kTransits, "previousDay")));
  previous_->setEnabled(details.PreviousDay.Enabled);
  next_->setText(Shown(details.NextDay.Caption));
  next_->setToolTip(WithKeys(next_->text(), KeysOf(kTransits, "nextDay")));
  next_->setEnabled(details.NextDay.Enabled);
  today_->setVisible(details.TodayLink);
  changes_->SetTable(details.Changes);
  ShowHours();
  ShowSky();
}

void TransitDetailsDialog::ShowHours() {
  const bool hadFocus = minutes_->hasFocus() || backToHours_->hasFocus();
  tables_->setCurrentWidget(hours_);
  backToHours_->hide();
  hour_->setText(tr("A click on an hour shows its minutes."));
  if (hadFocus) {
    hours_->setFocus();
  }
}

void TransitDetailsDialog::ShowMinutes(const QString& hourTag) {
  const auto details = transit::GetMinuteDetails(place_.Session, Subject().Body, Typed(hourTag));
  if (!details) {
    return;
  }
  hour_->setText(Shown(details->Label));
  minutes_->setAccessibleName(windowTitle() + ' ' + Shown(details->Label));
  minutes_->SetTable(details->Minutes);
  tables_->setCurrentWidget(minutes_);
  backToHours_->show();
  minutes_->setFocus();
}

void TransitDetailsDialog::ShowSky() {
  if (!picker_->Time()) {
    picker_->setFocus();
    return;
  }
  panchang::GetHeaderDetails(place_.Session, view_,
                             core::DateOnly(Subject().Date) + *picker_->Time());
  sky_->ShowView(view_);
}

void TransitDetailsDialog::Move(int days) {
  const transit::DetailsSubject subject = Subject();
  ShowDay(subject.Body, core::DateAdd(core::DateInterval::Days, days, subject.Date));
}

transit::DetailsSubject TransitDetailsDialog::Subject() const {
  return transit::SubjectOfTag(tag_).value();
}

void TransitDetailsDialog::hideEvent(QHideEvent* event) {
  place_.Layout.KeepWindow(*this);
  QDialog::hideEvent(event);
}

}  // namespace orvex::ui
