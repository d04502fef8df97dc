#include "ui/base/chart_view.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/painting/chart_painter.h"

namespace orvex::ui {

namespace {
constexpr int kSmallestSide = 24 * kGrid;
}

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
  setMinimumSize(kSmallestSide, kSmallestSide);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::SetPicture(report::ChartPicture picture) {
  picture_ = std::move(picture);
  update();
}

QSize ChartView::sizeHint() const { return {kSmallestSide, kSmallestSide}; }

void ChartView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font());
  PaintChart(painter, rect(), picture_,
             Theme::Mode() == ThemeMode::Dark ? DarkColors() : PrintColors());
}

// The tooltip of the field under the pointer.
bool ChartView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const QPoint where = dynamic_cast<QHelpEvent*>(event)->pos();
  const auto fields = LayOutChart(picture_, font(), ChartSquare(rect()));
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields.at(i).Outline.containsPoint(where, Qt::OddEvenFill)) {
      QToolTip::showText(dynamic_cast<QHelpEvent*>(event)->globalPos(),
                         Shown(picture_.Fields.at(i).Tooltip), this);
      return true;
    }
  }
  QToolTip::hideText();
  return true;
}

}  // namespace orvex::ui
