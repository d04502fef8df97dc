#include "ui/dialogs/query_fields.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/text.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/dialogs/form_rows.h"
#include "ui/dialogs/number_table.h"

namespace orvex::ui {

namespace {

constexpr int kLastNumber = 249;
constexpr const char* kOnlyNumbers = "Only a numeric value is accepted in this field.";

}  // namespace

QueryFields::QueryFields(Workplace& place, QObject* owner)
    : QObject(owner),
      place_(place),
      numbers_(static_cast<quint32>(place.Session.Time.Now().time_since_epoch().count())),
      number_(Named(new QComboBox, "horaryNumber")),
      random_(MakeButton("random", tr("&Random"))),
      tableLink_(new LinkButton("numberTableLink")),
      numberRow_(new QWidget),
      question_(Named(new QLineEdit, "horaryQuestion")),
      count_(Named(new QLabel, "questionCount")),
      whose_(MakeHint(tr("Moment and place are yours, the astrologer's: when and where you judge, "
                         "not those of the one who asks."))) {
  Build();
  connect(random_, &QPushButton::clicked, this,
          [this] { number_->setEditText(WholeText(numbers_.bounded(1, kLastNumber + 1))); });
  connect(tableLink_, &QPushButton::clicked, this, &QueryFields::ShowTable);
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
  whose_->setObjectName("whoseMoment");
  whose_->setWordWrap(true);
  auto* row = new QHBoxLayout(numberRow_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(number_);
  row->addWidget(random_);
  tableLink_->setText(tr("Table of the 249"));
  row->addWidget(tableLink_);
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

void QueryFields::ShowTable() {
  auto* table = new NumberTable(place_, numberRow_->window());
  table->setAttribute(Qt::WA_DeleteOnClose);
  table->setModal(true);
  connect(table, &NumberTable::NumberTaken, this, [this, table](const QString& number) {
    number_->setEditText(number);
    table->close();
    number_->setFocus();
  });
  table->ChooseNumber(number_->currentText());
  table->show();
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
