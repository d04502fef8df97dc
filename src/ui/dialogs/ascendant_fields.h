// The Ascendant of a birth: computed, or entered by hand.
#pragma once

#include <QWidget>

#include "chart/client_saving.h"

class QAbstractButton;
class QButtonGroup;
class QLineEdit;

namespace orvex::ui {

class AscendantFields final : public QWidget {
  Q_OBJECT

 public:
  AscendantFields();

  QWidget* Computed() const;
  void ChooseComputed();
  void Fill(const chart::ClientForm& form);
  void CopyInto(chart::ClientForm& form) const;

 private:
  QButtonGroup* choice_;
  QLineEdit* degree_;
};

}  // namespace orvex::ui
