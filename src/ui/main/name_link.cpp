#include "ui/main/name_link.h"

#include <QPainter>

#include "ui/base/table_model.h"
#include "ui/base/theme.h"

namespace orvex::ui {

NameLink::NameLink(const QString& name, const QString& figure) : name_(name), figure_(figure) {
  setAccessibleName(name + " " + figure);
  setToolTip(PlainTip(name));
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize NameLink::sizeHint() const { return {0, fontMetrics().height() + space::kXs}; }
QSize NameLink::minimumSizeHint() const { return sizeHint(); }

void NameLink::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.setFont(Theme::Text(type::kSmall));
  const QFontMetrics metrics = painter.fontMetrics();
  const int figure = metrics.horizontalAdvance(figure_);
  painter.setPen(t.Ink2);
  painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, figure_);
  painter.setPen(t.Accent);
  const QRect room = rect().adjusted(0, 0, -figure - space::kS, 0);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   metrics.elidedText(name_, Qt::ElideRight, room.width()));
  if (hasFocus()) {
    painter.setPen(QPen(t.Accent, line::kFocus));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
}

}  // namespace orvex::ui
