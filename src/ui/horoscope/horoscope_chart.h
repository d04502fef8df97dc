// A chart as a vector drawing that grows with its place.
#pragma once

#include <QWidget>

#include "report/chart_picture.h"

namespace orvex::ui {

class HoroscopeChart final : public QWidget {
  Q_OBJECT

 public:
  explicit HoroscopeChart(const QString& objectName);

  void SetPicture(const report::ChartPicture& picture);
  const report::ChartPicture& Picture() const { return picture_; }

  // The code of the planet drawn at a point, with its marks; "" where none is.
  QString CodeAt(const QPointF& point) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A double click on a planet: its code.
  void CodeActivated(const QString& code);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QString TooltipAt(const QPointF& point) const;

  report::ChartPicture picture_;
};

}  // namespace orvex::ui
