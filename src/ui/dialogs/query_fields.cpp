#include "ui/dialogs/query_fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "ui/base/message_boxes.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kLastNumber = 249;
constexpr const char* kOnlyNumbers = "Only a numeric value is accepted in this field.";

}  // namespace

QueryFields::QueryFields(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      numbers_(static_cast<quint32>(place.Session.Time.Now().time_since_epoch().count())),
      horary_(Named(new QCheckBox(tr("&Horary")), "horary")),
      number_(Named(new QComboBox, "horaryNumber")),
      random_(Named(new QPushButton(tr("&Random")), "random")),
      question_(Named(new QLineEdit, "horaryQuestion")),
      computed_(Named(new QRadioButton(tr("Co&mputed")), "ascendantComputed")),
      byHand_(Named(new QRadioButton(tr("Entered &by hand:")), "ascendantByHand")),
      degree_(Named(new QLineEdit, "ascendantDegree")) {
  Build();
  FollowHorary(false);
  Connect();
}

void QueryFields::Build() {
  number_->setEditable(true);
  number_->setInsertPolicy(QComboBox::NoInsert);
  for (int number = 1; number <= kLastNumber; ++number) {
    number_->addItem(WholeText(number));
  }
  random_->setAutoDefault(false);
  degree_->setMaximumWidth(12 * kGrid);
  degree_->setPlaceholderText(tr("0 to 360"));
  auto* number = new QHBoxLayout;
  number->addWidget(number_);
  number->addWidget(random_);
  number->addStretch();
  auto* ascendant = new QHBoxLayout;
  ascendant->addWidget(computed_);
  ascendant->addWidget(byHand_);
  ascendant->addWidget(degree_);
  ascendant->addStretch();
  auto* form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  form->addRow(tr("Query:"), horary_);
  auto* caption = new QLabel(tr("Horary N&umber:"));
  caption->setBuddy(number_);
  form->addRow(caption, number);
  form->addRow(tr("&Question:"), question_);
  form->addRow(tr("Ascendant:"), ascendant);
}

void QueryFields::Connect() {
  connect(horary_, &QCheckBox::toggled, this, &QueryFields::FollowHorary);
  connect(horary_, &QCheckBox::clicked, this, [this](bool on) {
    if (on) {
      emit HoraryStarted();
    }
  });
  connect(random_, &QPushButton::clicked, this,
          [this] { number_->setEditText(WholeText(numbers_.bounded(1, kLastNumber + 1))); });
  connect(byHand_, &QRadioButton::toggled, degree_, &QWidget::setEnabled);
  connect(number_->lineEdit(), &QLineEdit::textEdited, this, &QueryFields::RefuseLetters);
}

void QueryFields::FollowHorary(bool horary) {
  number_->setEnabled(horary);
  random_->setEnabled(horary);
  question_->setEnabled(horary);
  computed_->setChecked(true);
  computed_->setEnabled(!horary);
  byHand_->setEnabled(!horary);
  degree_->setEnabled(false);
}

void QueryFields::RefuseLetters(const QString& text) {
  QString digits = text;
  digits.removeIf([](QChar letter) { return letter < '0' || letter > '9'; });
  if (digits != text) {
    number_->setEditText(digits);
    Inform(place_.Session.Shown, kOnlyNumbers);
    number_->setFocus();
  }
}

void QueryFields::Fill(const chart::ClientForm& form) {
  horary_->setChecked(form.Horary);
  number_->setEditText(Shown(form.HoraryNumber));
  question_->setText(Shown(form.HoraryQuestion));
  (form.AscendantByHand ? byHand_ : computed_)->setChecked(true);
  degree_->setText(Shown(form.AscendantDegree));
}

void QueryFields::CopyInto(chart::ClientForm& form) const {
  form.Horary = horary_->isChecked();
  form.HoraryNumber = Typed(number_->currentText());
  form.HoraryQuestion = Typed(question_->text());
  form.AscendantByHand = byHand_->isChecked();
  form.AscendantDegree = Typed(degree_->text());
}

}  // namespace orvex::ui
