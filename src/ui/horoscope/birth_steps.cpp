#include "ui/horoscope/birth_steps.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "core/messages.h"
#include "horoscope/moved_lords.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/select_all_text.h"
#include "ui/horoscope/field_label.h"
#include "ui/horoscope/moved_tables.h"

namespace orvex::ui {

namespace {

constexpr int kMostSteps = 9999;

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

QVBoxLayout* Column(QWidget& parent) {
  auto* layout = new QVBoxLayout(&parent);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  return layout;
}

// A field under its caption.
QVBoxLayout* Captioned(const QString& caption, QWidget* field) {
  auto* label = new FieldLabel(caption);
  label->setBuddy(field);
  auto* layout = new QVBoxLayout;
  layout->setSpacing(0);
  layout->addWidget(label);
  layout->addWidget(field);
  return layout;
}

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
  auto* row = new QHBoxLayout;
  row->setSpacing(space::kS);
  for (QWidget* widget : widgets) {
    row->addWidget(widget);
  }
  return row;
}

}  // namespace

BirthSteps::BirthSteps(HoroscopeDocument& document, int side)
    : document_(document),
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
      tables_(new MovedTables(document.Place())) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kM);
  layout->addWidget(LayOutEntries(side));
  layout->addWidget(tables_, 1);
  Connect();
  SelectAllTextOnFocus(*this);
}

QWidget* BirthSteps::LayOutEntries(int side) {
  auto* entries = new QWidget;
  entries->setFixedWidth(side);
  auto* note = new FieldLabel(
      tr("Nothing is saved here. Tinted cells differ from the chart of the birth; seconds show "
         "when they turn the minute."));
  note->setFont(Theme::Text(type::kSmall));
  note->setWordWrap(true);
  QWidget* time = LayOutTime();
  if (document_.Model().Horary) {
    time->hide();
  }
  QVBoxLayout* column = Column(*entries);
  column->addWidget(time);
  column->addWidget(LayOutPlace());
  column->addLayout(Row({recalculate_, reset_}));
  column->addWidget(note);
  column->addStretch(1);
  return entries;
}

QWidget* BirthSteps::LayOutPlace() {
  auto* place = new QWidget;
  auto* fields = new QHBoxLayout;
  fields->setSpacing(space::kS);
  fields->addLayout(Captioned(tr("&Offset (hours)"), offset_));
  fields->addLayout(Captioned(tr("La&titude"), latitude_));
  fields->addLayout(Captioned(tr("Lon&gitude"), longitude_));
  QVBoxLayout* column = Column(*place);
  column->addWidget(MakeHeading(tr("Place")));
  column->addLayout(fields);
  return place;
}

QWidget* BirthSteps::LayOutTime() {
  amount_->setRange(1, kMostSteps);
  unit_->addItems({tr("Seconds"), tr("Minutes"), tr("Hours"), tr("Days")});
  unit_->setCurrentIndex(1);
  BindKeys(*earlier_, KeysOf("Horoscope", "earlier"));
  BindKeys(*later_, KeysOf("Horoscope", "later"));
  auto* step = new FieldLabel(tr("&Step"));
  step->setBuddy(amount_);
  auto* unit = new FieldLabel(tr("U&nit"));
  unit->setBuddy(unit_);
  auto* time = new QWidget;
  QVBoxLayout* column = Column(*time);
  column->addWidget(MakeHeading(tr("Birth time")));
  column->addWidget(moment_);
  column->addLayout(Row({step, amount_, unit, unit_}));
  column->addLayout(Row({earlier_, later_}));
  return time;
}

void BirthSteps::Connect() {
  connect(recalculate_, &QPushButton::clicked, this, &BirthSteps::Recalculate);
  for (QLineEdit* field : {offset_, latitude_, longitude_}) {
    connect(field, &QLineEdit::returnPressed, this, &BirthSteps::Recalculate);
  }
  connect(earlier_, &QPushButton::clicked, this, [this] { Step(-1); });
  connect(later_, &QPushButton::clicked, this, [this] { Step(1); });
  connect(reset_, &QPushButton::clicked, this, &BirthSteps::ReturnToBirth);
}

void BirthSteps::ShowModel() {
  if (!filled_) {
    filled_ = true;
    ReturnToBirth();
  }
}

void BirthSteps::FillForm() {
  const horoscope::RecalculationForm form = horoscope::OpenRecalculation(document_.Model());
  offset_->setText(Shown(form.Offset));
  latitude_->setText(Shown(form.Latitude));
  longitude_->setText(Shown(form.Longitude));
  shift_ = form.Shift;
}

horoscope::RecalculationForm BirthSteps::Form() const {
  return {Typed(offset_->text()), Typed(latitude_->text()), Typed(longitude_->text()), shift_};
}

void BirthSteps::ReturnToBirth() {
  FillForm();
  ofBirth_ = document_.Recalculate(horoscope::OpenRecalculation(document_.Model()));
  Recalculate();
}

void BirthSteps::Step(int direction) {
  const horoscope::BirthShift before = shift_;
  PartOf(shift_, unit_->currentIndex()) += std::int64_t{direction} * amount_->value();
  if (!Recalculate()) {
    shift_ = before;
  }
}

bool BirthSteps::Recalculate() {
  const horoscope::Recalculation result = document_.Recalculate(Form());
  if (result.Refused) {
    ShowRefusal(*result.Refused);
    return false;
  }
  moment_->setText(Shown(core::LongDateText(result.Birth, false)) + ' ' +
                   Shown(core::TimeSecondsAmPm(result.Birth)));
  tables_->ShowMoved(result, ofBirth_,
                     horoscope::MovedLords(document_.Place().Session, document_.Model(), Form()));
  return true;
}

void BirthSteps::ShowRefusal(const core::Refusal& refused) {
  document_.Place().Session.Shown.ShowMessage(refused.Text, core::MessageButtons::Ok, refused.Icon);
  if (auto* field = findChild<QLineEdit*>(Shown(refused.Field))) {
    field->setFocus();
    SelectAllText(*field);
  }
}

}  // namespace orvex::ui
