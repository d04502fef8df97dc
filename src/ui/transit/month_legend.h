// What the marks of the monthly grid mean, in one line under it.
#pragma once

#include <QWidget>

namespace orvex::ui {

class MonthLegend final : public QWidget {
  Q_OBJECT

 public:
  MonthLegend();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvex::ui
