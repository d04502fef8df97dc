#include "ui/base/house_mark.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/base/scaled.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr double kRing = 1.4;    // pixels of the outer ring of the main cusp
constexpr double kStroke = 1.8;  // of ticks and crosses
constexpr int kLordMark = 9;     // the side of the mark of a lord
constexpr int kLordGap = 3;

QFont MarkFont() { return Theme::Text(type::kSmall, QFont::DemiBold); }

QRectF Middle(const QRect& box, double width, double height) {
  const QPointF centre = QRectF(box).center();
  return {centre.x() - width / 2, centre.y() - height / 2, width, height};
}

void DrawRound(QPainter& painter, const QRect& box, bool main) {
  const Tokens& t = Theme::Now();
  const QSize room = HouseMarkSize();
  const QRectF disc = Middle(box, room.width() - 4.0, room.height() - 4.0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(t.Accent);
  painter.drawEllipse(disc);
  if (main) {
    painter.setPen(QPen(t.Accent, kRing));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(disc.adjusted(-2.2, -2.2, 2.2, 2.2));
  }
  painter.setPen(t.OnAccent);
}

void DrawDashed(QPainter& painter, const QRect& box) {
  const Tokens& t = Theme::Now();
  const QSize room = HouseMarkSize();
  QPen pen(t.Now, 1, Qt::CustomDashLine);
  pen.setDashPattern({2, 2});
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.drawRect(Middle(box, room.width() - 4.0, room.height() - 4.0).toAlignedRect());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(t.Now);
}

}  // namespace

QSize HouseMarkSize() {
  const QFontMetrics metrics(MarkFont());
  return {metrics.horizontalAdvance("10") + space::kS + 2, metrics.height() + space::kXs + 2};
}

void DrawHouseMark(QPainter& painter, const QRect& box, const QString& house, HouseRole role) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(MarkFont());
  switch (role) {
    case HouseRole::Main:
    case HouseRole::Supporting:
      DrawRound(painter, box, role == HouseRole::Main);
      break;
    case HouseRole::Denying:
      DrawDashed(painter, box);
      break;
    case HouseRole::None:
      painter.setFont(Theme::Text(type::kText));
      painter.setPen(Theme::Now().Ink2);
      break;
  }
  painter.drawText(box, Qt::AlignCenter, house);
  painter.restore();
}

void DrawLordMarks(QPainter& painter, const QRect& box, const QString& marks) {
  const Tokens& t = Theme::Now();
  const int side = Scaled(kLordMark);
  const int gap = Scaled(kLordGap);
  const auto count = static_cast<int>(marks.size());
  int left = box.left() + (box.width() - count * side - (count - 1) * gap) / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const QChar mark : marks) {
    const bool round = mark == u'●' || mark == u'○';
    const bool filled = mark == u'●' || mark == u'■';
    const QRectF place(left + 0.5, box.center().y() - side / 2 + 0.5, side - 1, side - 1);
    painter.setPen(QPen(filled ? (round ? t.Accent : t.Now) : t.Edge, 1));
    painter.setBrush(filled ? QBrush(round ? t.Accent : t.Now) : QBrush(Qt::NoBrush));
    if (round) {
      painter.drawEllipse(place);
    } else if (filled || mark == u'□') {
      painter.drawRect(place);
    }
    left += side + gap;
  }
  painter.restore();
}

void DrawTick(QPainter& painter, const QRect& box, bool passed) {
  const Tokens& t = Theme::Now();
  const double side = Scaled(kLordMark);
  const QRectF place = Middle(box, side, side);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  QPainterPath path;
  if (passed) {
    path.moveTo(place.left(), place.center().y());
    path.lineTo(place.left() + side * 0.36, place.bottom() - 0.5);
    path.lineTo(place.right(), place.top() + 0.5);
  } else {
    path.moveTo(place.topLeft() + QPointF(1, 1));
    path.lineTo(place.bottomRight() - QPointF(1, 1));
    path.moveTo(place.topRight() + QPointF(-1, 1));
    path.lineTo(place.bottomLeft() + QPointF(1, -1));
  }
  painter.setPen(QPen(passed ? t.Good : t.Now, kStroke, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(path);
  painter.restore();
}

}  // namespace orvex::ui
