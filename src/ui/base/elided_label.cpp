#include "ui/base/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace orvex::ui {

ElidedLabel::ElidedLabel(const QString& objectName, QWidget* parent) : QLabel(parent) {
  setObjectName(objectName);
  setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const { return {0, fontMetrics().height()}; }

QSize ElidedLabel::sizeHint() const {
  return fontMetrics().size(Qt::TextSingleLine, text()).grownBy({0, 0, 1, 0});
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    if (fontMetrics().horizontalAdvance(text()) > width()) {
      QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(),
                         this);
    }
    return true;
  }
  return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace orvex::ui
