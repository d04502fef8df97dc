// A chart that grows with its window, drawn as vectors.
#pragma once

#include <QWidget>

#include "report/chart_picture.h"

namespace orvex::ui {

class ChartView final : public QWidget {
  Q_OBJECT

 public:
  explicit ChartView(QWidget* parent = nullptr);

  void SetPicture(report::ChartPicture picture);
  const report::ChartPicture& Picture() const { return picture_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  report::ChartPicture picture_;
};

}  // namespace orvex::ui
