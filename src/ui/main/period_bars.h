// The running periods of a client: level, planet, end, and a bar of what is over.
#pragma once

#include <QWidget>
#include <vector>

#include "horoscope/client_card.h"

namespace orvex::ui {

class PeriodBars final : public QWidget {
  Q_OBJECT

 public:
  PeriodBars();

  void ShowPeriods(const std::vector<horoscope::CardPeriod>& periods);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int RowHeight() const;

  std::vector<horoscope::CardPeriod> periods_;
};

}  // namespace orvex::ui
