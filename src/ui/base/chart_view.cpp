#include "ui/base/chart_view.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/painting/chart_painter.h"

namespace orvex::ui {

namespace {
constexpr int kRoomAround = 5 * kGrid;  // what a chart likes to have beyond its smallest size
}

ChartView::ChartView(const QString& objectName, int smallestSide) : smallestSide_(smallestSide) {
  setObjectName(objectName);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ChartView::sizeHint() const {
  return minimumSizeHint().grownBy({kRoomAround, kRoomAround, 0, 0});
}

QSize ChartView::minimumSizeHint() const { return {smallestSide_, smallestSide_}; }

void ChartView::SetPicture(const report::ChartPicture& picture) {
  picture_ = picture;
  setAccessibleName(Shown(picture.Title));
  update();
}

QString ChartView::CodeAt(const QPointF& point) const {
  for (const DrawnField& field : LayOutChart(picture_, font(), ChartSquare(rect()))) {
    for (const PlacedWord& word : field.Codes.Words) {
      if (word.Box.contains(point)) {
        return word.Text;
      }
    }
  }
  return {};
}

QString ChartView::TooltipAt(const QPointF& point) const {
  const std::array<DrawnField, 12> drawn = LayOutChart(picture_, font(), ChartSquare(rect()));
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    if (drawn.at(i).Outline.containsPoint(point, Qt::OddEvenFill)) {
      return Shown(picture_.Fields.at(i).Tooltip).toHtmlEscaped();
    }
  }
  return {};
}

bool ChartView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TooltipAt(help->pos()), this);
    return true;
  }
  return QWidget::event(event);
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintChart(painter, rect(), picture_,
             Theme::Mode() == ThemeMode::Dark ? DarkColors() : PrintColors());
}

void ChartView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QString code = CodeAt(event->position());
  if (!code.isEmpty()) {
    emit CodeActivated(code);
  }
}

}  // namespace orvex::ui
