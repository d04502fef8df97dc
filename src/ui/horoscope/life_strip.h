// The dashas of a life in one strip with its ages, and under it the bhuktis of the chosen one.
#pragma once

#include <QWidget>

#include "ui/horoscope/horoscope_document.h"
#include "ui/painting/dasha_timeline.h"

namespace orvex::ui {

class LifeStrip final : public QWidget {
  Q_OBJECT

 public:
  explicit LifeStrip(HoroscopeDocument& document);

  void ShowModel();

  // The period at a point; nothing where there is none.
  std::optional<BarPlace> BarUnder(const QPoint& point) const;

 signals:
  // A click: the level, 0 or 1, and the row in its list.
  void PeriodChosen(std::size_t level, std::size_t row);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRect RowBox(std::size_t level) const;
  int XOf(std::size_t level, core::DateTime day) const;
  QRect BarBox(const BarPlace& bar) const;
  void PaintBars(QPainter& painter, std::size_t level) const;
  void PaintToday(QPainter& painter, std::size_t level) const;
  void PaintAges(QPainter& painter) const;

  HoroscopeDocument& document_;
  TimelinePicture picture_;
};

}  // namespace orvex::ui
