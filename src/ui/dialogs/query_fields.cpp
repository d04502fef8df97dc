#include "ui/dialogs/query_fields.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/text.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

constexpr int kLastNumber = 249;
constexpr const char* kOnlyNumbers = "Only a numeric value is accepted in this field.";

}  // namespace

QueryFields::QueryFields(Workplace& place, QObject* owner)
    : QObject(owner),
      numbers_(static_cast<quint32>(place.Session.Time.Now().time_since_epoch().count())),
      number_(Named(new QComboBox, "horaryNumber")),
      random_(MakeButton("random", tr("&Random"))),
      numberRow_(new QWidget),
      question_(Named(new QLineEdit, "horaryQuestion")),
      count_(Named(new QLabel, "questionCount")) {
  Build();
  connect(random_, &QPushButton::clicked, this,
          [this] { number_->setEditText(WholeText(numbers_.bounded(1, kLastNumber + 1))); });
  connect(number_->lineEdit(), &QLineEdit::textEdited, this, &QueryFields::RefuseLetters);
  connect(question_, &QLineEdit::textChanged, this, &QueryFields::CountQuestion);
  CountQuestion();
}

void QueryFields::Build() {
  number_->setEditable(true);
  number_->setInsertPolicy(QComboBox::NoInsert);
  for (int number = 1; number <= kLastNumber; ++number) {
    number_->addItem(WholeText(number));
  }
  count_->setAlignment(Qt::AlignRight);
  auto* row = new QHBoxLayout(numberRow_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(number_);
  row->addWidget(random_);
  row->addStretch();
}

void QueryFields::RefuseLetters(const QString& text) {
  QString digits = text;
  digits.removeIf([](QChar letter) { return letter < '0' || letter > '9'; });
  if (digits != text) {
    number_->setEditText(digits);
    emit Refused({kOnlyNumbers, core::MessageIcon::Information, Typed(number_->objectName())});
  }
}

// What is beyond the hundredth character is not stored.
void QueryFields::CountQuestion() {
  constexpr int kMost = 100;
  const auto count = static_cast<int>(core::CharacterCount(core::Trim(Typed(question_->text()))));
  count_->setText(tr("%1 of %2").arg(count).arg(kMost));
}

void QueryFields::Fill(const chart::ClientForm& form) {
  number_->setEditText(Shown(form.HoraryNumber));
  question_->setText(Shown(form.HoraryQuestion));
}

void QueryFields::CopyInto(chart::ClientForm& form) const {
  form.HoraryNumber = Typed(number_->currentText());
  form.HoraryQuestion = Typed(question_->text());
}

}  // namespace orvex::ui
