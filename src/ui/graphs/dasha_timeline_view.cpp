#include "ui/graphs/dasha_timeline_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace orvex::ui {

DashaTimelineView::DashaTimelineView(Workplace& place) : GraphView(place) {
  setObjectName("dashaTimeline");
  setAccessibleName(tr("Timeline of the periods"));
  setMouseTracking(true);
}

void DashaTimelineView::ShowPicture(TimelinePicture picture) {
  picture_ = std::move(picture);
  Describe();
  update();
}

std::string DashaTimelineView::Title() const { return "Timeline - " + picture_.Title; }

void DashaTimelineView::PaintGraph(QPainter& painter, const QRectF& area, Ground ground) const {
  PaintTimeline(painter, area, picture_, ground, std::nullopt);
}

void DashaTimelineView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  PaintTimeline(painter, rect(), picture_, WindowGround(),
                hasFocus() ? std::optional(level_) : std::nullopt);
}

QString DashaTimelineView::HintAt(const QPointF& point) const {
  const std::optional<BarPlace> bar = BarUnder(point);
  return bar ? TimelineHint(picture_, *bar) : QString();
}

std::optional<BarPlace> DashaTimelineView::BarUnder(const QPointF& point) const {
  return BarAt(LayOutTimeline(picture_, font(), rect()), point);
}

void DashaTimelineView::mouseMoveEvent(QMouseEvent* event) {
  setCursor(BarUnder(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void DashaTimelineView::mousePressEvent(QMouseEvent* event) {
  const std::optional<BarPlace> bar = BarUnder(event->position());
  if (bar && event->button() == Qt::LeftButton) {
    Choose(bar->Level, bar->Row);
  }
}

void DashaTimelineView::Choose(std::size_t level, std::size_t row) {
  TurnTo(level);
  emit PeriodChosen(level, row);
}

void DashaTimelineView::TurnTo(std::size_t level) {
  if (!picture_.Levels.at(level).Periods.empty()) {
    level_ = level;
    Describe();
    update();
  }
}

// Moves the choice within the level; beyond its ends it stays at the last.
void DashaTimelineView::Step(int by) {
  const TimelineLevel& level = picture_.Levels.at(level_);
  if (level.Periods.empty()) {
    return;
  }
  const auto last = static_cast<int>(level.Periods.size()) - 1;
  const int from = level.Chosen ? static_cast<int>(*level.Chosen) : by > 0 ? -1 : last + 1;
  const int row = std::clamp(from + by, 0, last);
  if (row != from) {
    Choose(level_, static_cast<std::size_t>(row));
  }
}

void DashaTimelineView::keyPressEvent(QKeyEvent* event) {
  constexpr int kAll = 9;
  switch (event->key()) {
    case Qt::Key_Left:
      Step(-1);
      break;
    case Qt::Key_Right:
      Step(1);
      break;
    case Qt::Key_Home:
      Step(-kAll);
      break;
    case Qt::Key_End:
      Step(kAll);
      break;
    case Qt::Key_Up:
      TurnTo(level_ == 0 ? 0 : level_ - 1);
      break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      TurnTo(std::min(level_ + 1, kTimelineLevels - 1));
      break;
    default:
      GraphView::keyPressEvent(event);
  }
}

void DashaTimelineView::focusInEvent(QFocusEvent* /*event*/) { update(); }
void DashaTimelineView::focusOutEvent(QFocusEvent* /*event*/) { update(); }

// What a reader of the screen is told: the period that the keys stand on.
void DashaTimelineView::Describe() {
  const std::optional<std::size_t> chosen = picture_.Levels.at(level_).Chosen;
  setAccessibleDescription(chosen ? TimelineHint(picture_, {level_, *chosen}) : QString());
}

}  // namespace orvex::ui
