// The spans of the Ascendant's sub around the stored birth, each with how far ruling planets and
// life events speak for it. One of them may be taken for the birth time.
#pragma once

#include <QWidget>

#include "ui/horoscope/horoscope_document.h"

class QLabel;
class QPushButton;
class QSpinBox;

namespace orvex::ui {

class ElidedLabel;
class TablePlan;
class TableView;

class BirthSpans final : public QWidget {
  Q_OBJECT

 public:
  explicit BirthSpans(HoroscopeDocument& document);

  // Tries the spans anew, by the ruling planets of this moment. The chosen span stays so, else that
  // of the stored time is chosen.
  void Judge();

 private:
  void LayOut();
  QWidget* LayOutHead();
  void Connect();
  void ShowMessage(const QString& text);
  void Take();

  HoroscopeDocument& document_;
  QSpinBox* minutes_;
  QPushButton* judge_;
  QPushButton* take_;
  ElidedLabel* rulers_;
  QLabel* message_;  // in the place of the spans where there are none
  TableView* spans_;
  TablePlan* plan_;
};

}  // namespace orvex::ui
