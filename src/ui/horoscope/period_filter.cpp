#include "ui/horoscope/period_filter.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/field_label.h"

namespace orvex::ui {

namespace {

constexpr int kWholeLife = 0;
constexpr int kAsTyped = -1;
constexpr std::array<int, 4> kYears = {1, 2, 5, judgement::kYearsOfPeriods};
constexpr int kAgesWidth = 64;

}  // namespace

PeriodFilter::PeriodFilter()
    : spans_(Named(new QComboBox, "periodSpan")),
      from_(new DateEdit("periodsFrom")),
      to_(new DateEdit("periodsTo")),
      ages_(Named(new QLineEdit, "periodAges")) {
  for (const int years : kYears) {
    spans_->addItem(years == 1 ? tr("Next year") : tr("Next %1 years").arg(years), years);
  }
  spans_->addItem(tr("Whole life"), kWholeLife);
  spans_->addItem(tr("As typed"), kAsTyped);
  spans_->setAccessibleName(tr("Which periods"));
  from_->setAccessibleName(tr("Periods from"));
  to_->setAccessibleName(tr("Periods to"));
  ages_->setAccessibleName(tr("Periods at ages"));
  ages_->setPlaceholderText("25-30");
  ages_->setToolTip(tr("Ages of the client, such as 27 or 25-30"));
  ages_->setFixedWidth(kAgesWidth * Theme::TextSize() / 100);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addWidget(spans_);
  for (const auto& [name, field] :
       {std::pair<QString, QLineEdit*>{tr("from"), from_}, {tr("to"), to_}, {tr("age"), ages_}}) {
    layout->addSpacing(space::kXs);
    layout->addWidget(new FieldLabel(name));
    layout->addWidget(field);
  }
  for (QWidget* field : std::initializer_list<QWidget*>{spans_, from_, to_, ages_}) {
    field->setFixedHeight(height::kSmallField);
  }
  connect(spans_, &QComboBox::activated, this, &PeriodFilter::TakeChoice);
  for (DateEdit* field : {from_, to_}) {
    connect(field, &QLineEdit::editingFinished, this, &PeriodFilter::TakeDates);
  }
  connect(ages_, &QLineEdit::editingFinished, this, &PeriodFilter::TakeAges);
}

void PeriodFilter::SetHoroscope(const core::ReferenceData& reference,
                                const chart::HoroscopeModel& model, core::DateTime now) {
  const bool first = window_.To == core::DateTime{};
  birth_ = model.Birth;
  now_ = now;
  life_ = judgement::WholeLife(reference, model);
  if (first) {
    const bool over = life_ && life_->To <= now;
    spans_->setCurrentIndex(spans_->findData(over ? kWholeLife : judgement::kYearsOfPeriods));
    window_ = judgement::UsualWindow(reference, model, now);
    ShowDates();
  }
}

void PeriodFilter::ShowDates() {
  from_->SetDate(window_.From);
  to_->SetDate(window_.To);
}

void PeriodFilter::Take(const judgement::PeriodWindow& window) {
  window_ = window;
  ShowDates();
  emit Changed();
}

void PeriodFilter::TakeChoice() {
  const int years = spans_->currentData().toInt();
  if (years == kAsTyped) {
    from_->setFocus();
    from_->selectAll();
    return;
  }
  ages_->clear();
  Take(years == kWholeLife && life_ ? *life_ : judgement::YearsFrom(now_, std::max(1, years)));
}

void PeriodFilter::TakeDates() {
  if (!from_->Date() || !to_->Date()) {
    emit Refused((from_->Date() ? to_ : from_)->Words());
    return;
  }
  const bool asShown =
      *from_->Date() == core::DateOnly(window_.From) && *to_->Date() == core::DateOnly(window_.To);
  if (asShown) {
    return;
  }
  if (*to_->Date() <= *from_->Date()) {
    emit Refused(tr("The second date does not lie after the first."));
    return;
  }
  spans_->setCurrentIndex(spans_->findData(kAsTyped));
  ages_->clear();
  Take({*from_->Date(), *to_->Date()});
}

void PeriodFilter::TakeAges() {
  if (ages_->text().trimmed().isEmpty()) {
    return;
  }
  const std::optional<judgement::AgeSpan> ages = judgement::ReadAges(Typed(ages_->text()));
  if (!ages) {
    emit Refused(tr("Ages are written as 27 or 25-30."));
    return;
  }
  const judgement::PeriodWindow window = judgement::WindowOfAges(birth_, *ages);
  if (window.From == window_.From && window.To == window_.To) {
    return;
  }
  spans_->setCurrentIndex(spans_->findData(kAsTyped));
  Take(window);
}

}  // namespace orvex::ui
