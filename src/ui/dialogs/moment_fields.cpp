#include "ui/dialogs/moment_fields.h"

#include "ui/base/labels.h"
#include "ui/base/moment_edit.h"
#include "ui/base/theme.h"
#include "ui/dialogs/form_rows.h"

namespace orvex::ui {

namespace {

// Says beside a field that its text was understood.
QLabel* TickOf(const MomentEdit& field) {
  auto* tick = new QLabel;
  QPalette good = tick->palette();
  good.setColor(QPalette::WindowText, Theme::Now().Good);
  tick->setPalette(good);
  tick->setFixedWidth(tick->fontMetrics().horizontalAdvance("✓") + 1);
  const auto follow = [tick, &field] { tick->setText(field.IsUnderstood() ? "✓" : ""); };
  QObject::connect(&field, &MomentEdit::Changed, tick, follow);
  follow();
  return tick;
}

}  // namespace

MomentFields::MomentFields(const core::Clock& clock, QObject* owner)
    : QObject(owner),
      clock_(clock),
      date_(new DateEdit("birth")),
      time_(new TimeEdit("birthTime")),
      now_(new LinkButton("now")) {
  now_->setText(tr("now"));
  connect(date_, &DateEdit::Changed, this, &MomentFields::Changed);
  connect(time_, &TimeEdit::Changed, this, &MomentFields::Changed);
  connect(now_, &QPushButton::clicked, this, &MomentFields::ShowNow);
}

void MomentFields::AddTo(FormRows& rows) {
  QLabel* date = date_->MakeEcho();
  QLabel* time = time_->MakeEcho();
  for (MomentEdit* field : {static_cast<MomentEdit*>(date_), static_cast<MomentEdit*>(time_)}) {
    field->setMinimumHeight(height::kField);
  }
  for (QLabel* echo : {date, time}) {
    echo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  }
  rows.Add(tr("&Date"), date_, {date_, TickOf(*date_), date},
           MakeHint(tr("5.7.1990, 5 jul 1990 and 1990-07-05 are all read")));
  rows.Add(tr("Ti&me"), time_, {time_, TickOf(*time_), time, now_},
           MakeHint(tr("1430, 2:30p and 14:30:20 are all read")));
}

std::optional<core::DateTime> MomentFields::Moment() const {
  return date_->Date() && time_->Time() ? std::optional(*date_->Date() + *time_->Time())
                                        : std::nullopt;
}

void MomentFields::ShowMoment(core::DateTime moment) {
  date_->SetDate(moment);
  time_->SetTime(core::TimeOfDayOf(moment));
}

void MomentFields::ShowNow() { ShowMoment(clock_.Now()); }

const MomentEdit* MomentFields::Unread() const {
  if (!date_->IsUnderstood()) {
    return date_;
  }
  return time_->IsUnderstood() ? nullptr : time_;
}

}  // namespace orvex::ui
