#include "ui/transit/month_legend.h"

#include <QPainter>

#include "ui/base/scaled.h"
#include "ui/transit/month_cell_delegate.h"

namespace orvex::ui {

namespace {

constexpr int kLegendHeight = 24;
constexpr int kScorpio = 8;

// Writes a text at the left of a row, as far as it has room, and takes that room away.
void WriteIn(QPainter& painter, QRect& row, const QString& text, int behind) {
  const QFontMetrics metrics(painter.font());
  painter.drawText(row, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                   metrics.elidedText(text, Qt::ElideRight, std::max(0, row.width())));
  row.setLeft(row.left() + metrics.horizontalAdvance(text) + behind);
}

}  // namespace

MonthLegend::MonthLegend() {
  setObjectName("monthLegend");
  setAccessibleName(
      tr("A filled tag: enters a sign. R or D in a frame: turns retrograde, turns direct. A dashed "
         "line: retrograde."));
  setToolTip(accessibleName());
}

QSize MonthLegend::sizeHint() const { return {1, Scaled(kLegendHeight)}; }
QSize MonthLegend::minimumSizeHint() const { return sizeHint(); }

void MonthLegend::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.setFont(Theme::Text(type::kHead));
  painter.setPen(t.Ink2);
  QRect row = rect().adjusted(0, 2, 0, 0);
  row.setLeft(DrawSignTag(painter, row, SignTag(kScorpio)) + space::kXs);
  WriteIn(painter, row, tr("enters a sign"), space::kL);
  for (const bool retrograde : {true, false}) {
    row.setLeft(row.left() + DrawStation(painter, row, retrograde) + space::kXs + 1);
  }
  WriteIn(painter, row, tr("turns retrograde, turns direct"), space::kL);
  DrawRetrogradeLine(painter, row.adjusted(0, 3, 0, -3));
  row.setLeft(row.left() + space::kS);
  painter.setPen(t.Now);
  WriteIn(painter, row, "22.30", space::kXs);
  painter.setPen(t.Ink2);
  WriteIn(painter, row, tr("retrograde"), space::kL);
  const QString click = tr("a click opens the day, hour by hour");
  if (QFontMetrics(painter.font()).horizontalAdvance(click) < row.width()) {
    painter.drawText(row, Qt::AlignVCenter | Qt::AlignRight, click);
  }
}

}  // namespace orvex::ui
