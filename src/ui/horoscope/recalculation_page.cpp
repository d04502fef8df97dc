#include "ui/horoscope/recalculation_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QSplitter>
#include <algorithm>

#include "core/messages.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/select_all_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/field_label.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

constexpr const char* kChangedColor = "FEFA85";
constexpr int kMostSteps = 9999;

// Tints the cells that differ from those of the birth.
core::Table WithChangesMarked(core::Table table, const core::Table& birth) {
  for (std::size_t row = 0; row < std::min(table.Rows.size(), birth.Rows.size()); ++row) {
    std::vector<core::Cell>& cells = table.Rows[row].Cells;
    for (std::size_t column = 0; column < cells.size(); ++column) {
      if (cells[column].Text != birth.Rows[row].Cells.at(column).Text) {
        cells[column].Background = kChangedColor;
      }
    }
  }
  return table;
}

QWidget* Titled(const QString& title, TableView* view) {
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGrid / 2);
  layout->addWidget(MakeHeading(title));
  layout->addWidget(view, 1);
  return part;
}

// The field of the shift that the choice of the unit stands for, in the order of the list.
std::int64_t& PartOf(horoscope::BirthShift& shift, int unit) {
  switch (unit) {
    case 0:
      return shift.Seconds;
    case 1:
      return shift.Minutes;
    case 2:
      return shift.Hours;
    default:
      return shift.Days;
  }
}

}  // namespace

RecalculationPage::RecalculationPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      offset_(Named(new QLineEdit, "offset")),
      latitude_(Named(new QLineEdit, "latitude")),
      longitude_(Named(new QLineEdit, "longitude")),
      recalculate_(Named(new QPushButton(tr("&Recalculate")), "recalculate")),
      moment_(MakeCaptionLabel("movedBirth")),
      amount_(Named(new QSpinBox, "stepAmount")),
      unit_(Named(new QComboBox, "stepUnit")),
      earlier_(Named(new QPushButton(tr("◂ &Earlier")), "earlier")),
      later_(Named(new QPushButton(tr("&Later ▸")), "later")),
      reset_(Named(new QPushButton(tr("&Back to the birth")), "backToBirth")),
      cusps_(Named(new TableView, "workCusps")),
      planets_(Named(new TableView, "workPlanets")),
      balance_(MakeCaptionLabel("workBalance")),
      dashas_(Named(new TableView, "workDashas")) {
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(LayOutEntries());
  layout->addWidget(LayOutResults(), 1);
  Connect();
  SelectAllTextOnFocus(*this);
}

QVBoxLayout* RecalculationPage::LayOutEntries() {
  auto* entries = new QVBoxLayout;
  auto* note = new FieldLabel(
      tr("Nothing is saved here. Tinted cells differ from the chart of the birth; seconds show "
         "when they turn the minute."));
  note->setWordWrap(true);
  QGroupBox* time = LayOutTime();
  time->setVisible(!Model().Horary);
  entries->addWidget(LayOutPlace());
  entries->addWidget(time);
  entries->addWidget(reset_);
  entries->addWidget(note);
  entries->addStretch(1);
  return entries;
}

QGroupBox* RecalculationPage::LayOutPlace() {
  auto* place = new QGroupBox(tr("Place"));
  auto* form = new QFormLayout(place);
  form->addRow(tr("&Offset (hours)"), offset_);
  form->addRow(tr("La&titude"), latitude_);
  form->addRow(tr("Lon&gitude"), longitude_);
  form->addRow(recalculate_);
  return place;
}

QGroupBox* RecalculationPage::LayOutTime() {
  amount_->setRange(1, kMostSteps);
  unit_->addItems({tr("Seconds"), tr("Minutes"), tr("Hours"), tr("Days")});
  unit_->setCurrentIndex(1);
  earlier_->setToolTip(tr("Alt+Left"));
  later_->setToolTip(tr("Alt+Right"));
  earlier_->setShortcut(Qt::ALT | Qt::Key_Left);
  later_->setShortcut(Qt::ALT | Qt::Key_Right);
  auto* time = new QGroupBox(tr("Birth time"));
  auto* form = new QFormLayout(time);
  form->addRow(moment_);
  form->addRow(tr("&Step"), amount_);
  form->addRow(tr("&Unit"), unit_);
  auto* steps = new QHBoxLayout;
  steps->addWidget(earlier_);
  steps->addWidget(later_);
  form->addRow(steps);
  return time;
}

QWidget* RecalculationPage::LayOutResults() {
  auto* results = Named(new QSplitter(Qt::Vertical), "workTables");
  auto* upper = new QWidget;
  auto* beside = new QHBoxLayout(upper);
  beside->setContentsMargins(0, 0, 0, 0);
  beside->addWidget(Titled(tr("Cusps"), cusps_), 2);
  QWidget* periods = Titled(tr("Dashas"), dashas_);
  balance_->setWordWrap(true);
  periods->layout()->addWidget(balance_);
  beside->addWidget(periods, 1);
  results->addWidget(upper);
  results->addWidget(Titled(tr("Planets"), planets_));
  Document().Place().Layout.Remember(*results);
  return results;
}

void RecalculationPage::Connect() {
  connect(recalculate_, &QPushButton::clicked, this, &RecalculationPage::Recalculate);
  for (QLineEdit* field : {offset_, latitude_, longitude_}) {
    connect(field, &QLineEdit::returnPressed, this, &RecalculationPage::Recalculate);
  }
  connect(earlier_, &QPushButton::clicked, this, [this] { Step(-1); });
  connect(later_, &QPushButton::clicked, this, [this] { Step(1); });
  connect(reset_, &QPushButton::clicked, this, &RecalculationPage::ReturnToBirth);
}

void RecalculationPage::ShowModel() {
  if (!filled_) {
    filled_ = true;
    ReturnToBirth();
  }
}

void RecalculationPage::FillForm() {
  const horoscope::RecalculationForm form = horoscope::OpenRecalculation(Model());
  offset_->setText(Shown(form.Offset));
  latitude_->setText(Shown(form.Latitude));
  longitude_->setText(Shown(form.Longitude));
  shift_ = form.Shift;
}

void RecalculationPage::ReturnToBirth() {
  FillForm();
  ofBirth_ = Document().Recalculate(horoscope::OpenRecalculation(Model()));
  Recalculate();
}

void RecalculationPage::Step(int direction) {
  const horoscope::BirthShift before = shift_;
  PartOf(shift_, unit_->currentIndex()) += std::int64_t{direction} * amount_->value();
  if (!Recalculate()) {
    shift_ = before;
  }
}

bool RecalculationPage::Recalculate() {
  const horoscope::Recalculation result = Document().Recalculate(
      {Typed(offset_->text()), Typed(latitude_->text()), Typed(longitude_->text()), shift_});
  if (result.Refused) {
    ShowRefusal(*result.Refused);
    return false;
  }
  ShowResult(result);
  return true;
}

void RecalculationPage::ShowRefusal(const core::Refusal& refused) {
  Document().Place().Session.Shown.ShowMessage(refused.Text, core::MessageButtons::Ok,
                                               refused.Icon);
  if (auto* field = findChild<QLineEdit*>(Shown(refused.Field))) {
    field->setFocus();
    SelectAllText(*field);
  }
}

void RecalculationPage::ShowResult(const horoscope::Recalculation& result) {
  moment_->setText(Shown(core::LongDateText(result.Birth, false)) + ' ' +
                   Shown(core::TimeSecondsAmPm(result.Birth)));
  cusps_->SetTable(WithChangesMarked(result.Cusps, ofBirth_.Cusps));
  planets_->SetTable(WithChangesMarked(result.Planets, ofBirth_.Planets));
  dashas_->SetTable(WithChangesMarked(result.Dashas, ofBirth_.Dashas));
  balance_->setText(Shown(result.DashaBalance));
}

}  // namespace orvex::ui
