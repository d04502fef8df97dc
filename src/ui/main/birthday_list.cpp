#include "ui/main/birthday_list.h"

#include <QLabel>
#include <QVBoxLayout>

#include "practice/birthdays.h"
#include "ui/base/export_table.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"

namespace orvex::ui {

BirthdayList::BirthdayList(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      caption_(Named(new QLabel, "birthdayCaption")),
      list_(Named(new TableView, "birthdayList")) {
  caption_->setTextFormat(Qt::PlainText);
  list_->setAccessibleName(tr("Birthdays"));
  list_->SetEmptyText(tr("Nobody has a birthday today."));
  list_->RememberWidths(place.Layout);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(caption_);
  column->addWidget(list_, 1);
}

void BirthdayList::Reload() {
  day_ = place_.Session.Time.Today();
  core::Table birthdays = practice::GetBirthdaysToday(place_.Session);
  caption_->setText(Shown(practice::BirthdayCaption(birthdays)));
  const bool any = !birthdays.Rows.empty();
  list_->SetTable(std::move(birthdays));
  list_->setMinimumHeight(list_->sizeHint().height());
  list_->SetExport(
      any ? [this](const core::Table&
                       table) { ExportTable(place_, *this, table, Typed(caption_->text())); }
          : std::function<void(const core::Table&)>());
}

bool BirthdayList::FollowDay() {
  const bool another = place_.Session.Time.Today() != day_;
  if (another) {
    Reload();
  }
  return another;
}

const core::Table& BirthdayList::Table() const { return list_->Table(); }

}  // namespace orvex::ui
