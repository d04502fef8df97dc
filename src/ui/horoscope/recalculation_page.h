// The chart for another place or birth time, beside what it changes. Nothing is saved.
#pragma once

#include "ui/base/table_view.h"
#include "ui/horoscope/horoscope_page.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace orvex::ui {

class RecalculationPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit RecalculationPage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QVBoxLayout* LayOutEntries();
  QGroupBox* LayOutPlace();
  QGroupBox* LayOutTime();
  QWidget* LayOutResults();
  void Connect();

  void FillForm();
  // Computes what the fields say; false where it was refused.
  bool Recalculate();
  void Step(int direction);
  void ReturnToBirth();
  void ShowRefusal(const core::Refusal& refused);
  void ShowResult(const horoscope::Recalculation& result);

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
  TableView* cusps_;
  TableView* planets_;
  QLabel* balance_;
  TableView* dashas_;

  horoscope::BirthShift shift_;
  horoscope::Recalculation ofBirth_;  // what the results are compared with
  bool filled_ = false;
};

}  // namespace orvex::ui
