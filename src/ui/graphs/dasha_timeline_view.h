// The periods of a horoscope as bars; a click or the keys choose one and open the level below it.
#pragma once

#include "ui/graphs/graph_view.h"
#include "ui/painting/dasha_timeline.h"

namespace orvex::ui {

// Left and Right, Home and End choose within a level, Up and Down move between the levels.
class DashaTimelineView final : public GraphView {
  Q_OBJECT

 public:
  explicit DashaTimelineView(Workplace& place);

  void ShowPicture(TimelinePicture picture);
  const TimelinePicture& Picture() const { return picture_; }

  // The level that the keys move in, 0 to 2.
  std::size_t Level() const { return level_; }

 signals:
  // A period was chosen: its level, 0 to 2, and its row in the list of that level.
  void PeriodChosen(std::size_t level, std::size_t row);

 protected:
  std::string Title() const override;
  void PaintGraph(QPainter& painter, const QRectF& area, Ground ground) const override;
  QString HintAt(const QPointF& point) const override;

  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  std::optional<BarPlace> BarUnder(const QPointF& point) const;
  void Choose(std::size_t level, std::size_t row);
  void Step(int by);
  void TurnTo(std::size_t level);
  void Describe();

  TimelinePicture picture_;
  std::size_t level_ = 0;
};

}  // namespace orvex::ui
