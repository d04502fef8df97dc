// Edit fields for dates and moments of the years 100 to 9999.
#pragma once

#include <QDateTimeEdit>

namespace orvex::ui {

// Day, month and year; with a calendar to drop down.
QDateTimeEdit* MakeDateEdit(const QString& objectName);

// The same with hours, minutes and seconds.
QDateTimeEdit* MakeMomentEdit(const QString& objectName);

// Hours and minutes of a clock of twelve hours. The date that it holds is not shown.
QDateTimeEdit* MakeTimeEdit(const QString& objectName);

}  // namespace orvex::ui
