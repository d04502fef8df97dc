// The ranked periods along their years: the best ones tall and numbered, those of a positive score
// of middle height, the others a line.
#pragma once

#include <QWidget>
#include <vector>

#include "judgement/matter_periods.h"

namespace orvex::ui {

class PeriodStrip final : public QWidget {
  Q_OBJECT

 public:
  PeriodStrip();

  // The rows of the table of periods stand in their order of rank.
  void Show(const core::Table& matterPeriods, const judgement::PeriodWindow& window,
            core::DateTime now);

  // The period that is chosen, by its place in the table; -1 for none.
  void Choose(int row);

  // The place in the table of the period under a point; -1 where there is none.
  int PeriodAt(const QPoint& point) const;

 signals:
  void PeriodClicked(int row);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  struct Bar {
    core::DateTime From{};
    core::DateTime Until{};
    int Score = 0;
    QString Words;
  };

  int XOf(core::DateTime moment) const;
  QRect BoxOf(int row) const;
  void PaintBars(QPainter& painter) const;
  void PaintRanks(QPainter& painter) const;
  void PaintYears(QPainter& painter) const;

  std::vector<Bar> bars_;  // in the order of the table
  judgement::PeriodWindow window_;
  core::DateTime now_{};
  int chosen_ = -1;
};

}  // namespace orvex::ui
