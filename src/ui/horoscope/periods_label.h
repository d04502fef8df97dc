// The caption of the running periods, drawn with the chips of its planets and the end of the last.
#pragma once

#include <QLabel>

#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class PeriodsLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit PeriodsLabel(HoroscopeDocument& document);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  struct Part {
    QRect Box;
    QString Text;
    QString Code;
  };
  std::vector<Part> LayOut() const;

  HoroscopeDocument& document_;
};

}  // namespace orvex::ui
