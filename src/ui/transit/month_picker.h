// Picks a month of the years that the grid reaches: the twelve months under a field for the year.
#pragma once

#include <QFrame>

class QButtonGroup;
class QSpinBox;

namespace orvex::ui {

class MonthPicker final : public QFrame {
  Q_OBJECT

 public:
  // A popup of `parent` that deletes itself. The arrow keys move between the months, Page Up and
  // Page Down between the years, Enter picks, Escape leaves.
  MonthPicker(int month, int year, QWidget& parent);

  void OpenUnder(const QWidget& button);

 signals:
  // Month from 1 to 12.
  void Picked(int month, int year);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build(int month);
  void Step(int by);
  void Pick(int month);

  QSpinBox* years_;
  QButtonGroup* months_;
};

}  // namespace orvex::ui
