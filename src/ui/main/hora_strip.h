// The twelve horas of the day side by side, with now as a red line and the kaals under them.
#pragma once

#include <QWidget>

#include "panchang/day_strip.h"

namespace orvex::ui {

class HoraStrip final : public QWidget {
  Q_OBJECT

 public:
  HoraStrip();

  // `now` is the clock time that stands over the line.
  void ShowStrip(panchang::DayStrip strip, const QString& now);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect BoxOf(const panchang::StripPart& part, int top, int height) const;
  int LineHeight() const;
  int ChipTop() const;
  int ChipHeight() const;
  int KaalTop() const;
  void PaintHoras(QPainter& painter) const;
  void PaintKaals(QPainter& painter) const;
  void PaintNow(QPainter& painter) const;
  QString TipAt(const QPoint& point) const;

  panchang::DayStrip strip_;
  QString now_;
};

}  // namespace orvex::ui
