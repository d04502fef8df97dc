// The 249 numbers of a query with the part of the zodiac that each stands for, to look one up.
#pragma once

#include <QDialog>

#include "ui/base/workplace.h"

namespace orvex::ui {

class TableView;

class NumberTable final : public QDialog {
  Q_OBJECT

 public:
  explicit NumberTable(Workplace& place, QWidget* parent = nullptr);

  // Chooses the row of a number; any other text changes nothing.
  void ChooseNumber(const QString& number);

 signals:
  // A double click or the Enter key on a row.
  void NumberTaken(const QString& number);

 private:
  void Take(const QString& typed);

  TableView* list_;
};

}  // namespace orvex::ui
