// All captions of a birth, one under the other.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/base/shown_page.h"
#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class ElidedLabel;

class BirthPanel final : public QWidget, public PrintsItself {
  Q_OBJECT

 public:
  explicit BirthPanel(HoroscopeDocument& document);

  void ShowModel();

  std::vector<PageBlock> PrintedBlocks() const override;

 private:
  HoroscopeDocument& document_;
  std::vector<ElidedLabel*> values_;
};

}  // namespace orvex::ui
