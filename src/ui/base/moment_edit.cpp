#include "ui/base/moment_edit.h"

namespace orvex::ui {

namespace {

QDateTimeEdit* MakeEdit(const QString& objectName, const QString& format) {
  auto* edit = new QDateTimeEdit;
  edit->setObjectName(objectName);
  edit->setTimeSpec(Qt::UTC);
  edit->setDisplayFormat(format);
  // A format without a date narrows the range to one day.
  edit->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  edit->setCalendarPopup(true);
  return edit;
}

}  // namespace

QDateTimeEdit* MakeDateEdit(const QString& objectName) {
  return MakeEdit(objectName, "dd-MM-yyyy");
}

QDateTimeEdit* MakeMomentEdit(const QString& objectName) {
  return MakeEdit(objectName, "dd-MM-yyyy hh:mm:ss AP");
}

QDateTimeEdit* MakeTimeEdit(const QString& objectName) {
  QDateTimeEdit* edit = MakeEdit(objectName, "hh:mm AP");
  edit->setCalendarPopup(false);
  return edit;
}

}  // namespace orvex::ui
