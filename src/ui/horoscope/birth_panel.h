// All captions of a birth, one under the other.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class ElidedLabel;

class BirthPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit BirthPanel(HoroscopeDocument& document);

  void ShowModel();

 private:
  HoroscopeDocument& document_;
  std::vector<ElidedLabel*> values_;
};

}  // namespace orvex::ui
