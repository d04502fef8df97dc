// The chart for another place or birth time, step by step, beside what it changes. Nothing is
// saved.
#pragma once

#include <QWidget>

#include "ui/horoscope/horoscope_document.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace orvex::ui {

class MovedTables;

class BirthSteps final : public QWidget {
  Q_OBJECT

 public:
  // `side` is the width in pixels of what is typed.
  BirthSteps(HoroscopeDocument& document, int side);

  // Begins at the birth when it is first shown; later it stays where the user has stepped to.
  void ShowModel();

 private:
  QWidget* LayOutEntries(int side);
  QWidget* LayOutPlace();
  QWidget* LayOutTime();
  void Connect();

  void FillForm();
  horoscope::RecalculationForm Form() const;
  // Computes what the fields say; false where it was refused.
  bool Recalculate();
  void Step(int direction);
  void ReturnToBirth();
  void ShowRefusal(const core::Refusal& refused);

  HoroscopeDocument& document_;
  QLineEdit* offset_;
  QLineEdit* latitude_;
  QLineEdit* longitude_;
  QPushButton* recalculate_;
  QLabel* moment_;
  QSpinBox* amount_;
  QComboBox* unit_;
  QPushButton* earlier_;
  QPushButton* later_;
  QPushButton* reset_;
  MovedTables* tables_;

  horoscope::BirthShift shift_;
  horoscope::Recalculation ofBirth_;  // what the results are compared with
  bool filled_ = false;
};

}  // namespace orvex::ui
