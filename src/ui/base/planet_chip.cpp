#include "ui/base/planet_chip.h"

#include <QPainter>

#include "ui/base/theme.h"

namespace orvex::ui {

QFont ChipFont() { return Theme::Text(type::kHead, QFont::Bold); }

QSize ChipSize() {
  const QFontMetrics metrics(ChipFont());
  return {metrics.horizontalAdvance("MO") + 2 * space::kXs - 1, metrics.height() + 2};
}

void DrawChip(QPainter& painter, const QRect& box, const QString& code, bool chosen) {
  const Tokens& t = Theme::Now();
  const ChipColors colors = ChipOf(t, code);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(chosen ? QPen(t.Accent, line::kFocus) : QPen(Qt::NoPen));
  painter.setBrush(colors.Ground);
  const QRectF frame = chosen ? QRectF(box).adjusted(0, 0, 0, 0) : QRectF(box);
  painter.drawRoundedRect(frame, radius::kChip, radius::kChip);
  painter.setFont(ChipFont());
  painter.setPen(colors.Letters);
  painter.drawText(box, Qt::AlignCenter, code);
  painter.restore();
}

void DrawFruitfulRing(QPainter& painter, const QRect& box) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Theme::Now().Ink, line::kFocus));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(box).adjusted(-0.5, -0.5, 0.5, 0.5), radius::kChip + 1,
                          radius::kChip + 1);
  painter.restore();
}

}  // namespace orvex::ui
