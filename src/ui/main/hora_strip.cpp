#include "ui/main/hora_strip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/base/cell_delegate.h"
#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kKaalHeight = 8;

QFont SmallFont(QFont::Weight weight = QFont::Normal) { return Theme::Text(type::kHead, weight); }

}  // namespace

HoraStrip::HoraStrip() {
  setObjectName("horaStrip");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

int HoraStrip::LineHeight() const { return QFontMetrics(SmallFont()).height(); }
int HoraStrip::ChipTop() const { return LineHeight() + 1; }
int HoraStrip::ChipHeight() const { return ChipSize().height() + 2; }
int HoraStrip::KaalTop() const { return ChipTop() + ChipHeight() + space::kXs; }

QSize HoraStrip::sizeHint() const { return {240, KaalTop() + kKaalHeight + LineHeight()}; }
QSize HoraStrip::minimumSizeHint() const { return {0, sizeHint().height()}; }

void HoraStrip::ShowStrip(panchang::DayStrip strip, const QString& now) {
  strip_ = std::move(strip);
  now_ = now;
  QStringList words;
  for (const std::vector<panchang::StripPart>* parts : {&strip_.Horas, &strip_.Kaals}) {
    for (const panchang::StripPart& part : *parts) {
      words << Shown(part.Name + " " + part.Times);
    }
  }
  setAccessibleName(tr("Horas of the day"));
  setAccessibleDescription(words.join(", "));
  update();
}

QRect HoraStrip::BoxOf(const panchang::StripPart& part, int top, int height) const {
  const int left = static_cast<int>(part.From * width());
  return {left, top, static_cast<int>(part.To * width()) - left, height};
}

void HoraStrip::PaintHoras(QPainter& painter) const {
  const Tokens& t = Theme::Now();
  for (const panchang::StripPart& hora : strip_.Horas) {
    const QRect box = BoxOf(hora, ChipTop(), ChipHeight()).adjusted(0, 0, -1, 0);
    const QString code = CodeOfWord(Shown(hora.Name));
    const ChipColors colors = ChipOf(t, code);
    painter.fillRect(box, colors.Ground);
    painter.setFont(SmallFont(QFont::Bold));
    painter.setPen(colors.Letters);
    painter.drawText(box, Qt::AlignCenter, code);
    if (strip_.Now && hora.From <= *strip_.Now && *strip_.Now < hora.To) {
      painter.setPen(QPen(t.Ink, 2));
      painter.drawRect(box.adjusted(0, 0, 0, 0));
    }
  }
}

// A name stands under its kaal; where two would touch, the later one moves on or is left out.
void HoraStrip::PaintKaals(QPainter& painter) const {
  const Tokens& t = Theme::Now();
  int free = 0;
  for (const panchang::StripPart& kaal : strip_.Kaals) {
    const QRect box = BoxOf(kaal, KaalTop(), kKaalHeight).adjusted(0, 0, -1, -1);
    painter.setPen(QPen(t.Hard, 1, Qt::DashLine));
    painter.setBrush(t.HardGround);
    painter.drawRoundedRect(box, 2, 2);
    painter.setFont(SmallFont());
    const QString name = Shown(kaal.Name);
    const int wide = painter.fontMetrics().horizontalAdvance(name);
    const int left = std::clamp(box.center().x() - wide / 2, free, std::max(free, width() - wide));
    if (left + wide <= width()) {
      painter.setPen(t.Ink2);
      painter.drawText(QRect(left, KaalTop() + kKaalHeight, wide, LineHeight()), Qt::AlignCenter,
                       name);
      free = left + wide + space::kXs;
    }
  }
}

void HoraStrip::PaintNow(QPainter& painter) const {
  const Tokens& t = Theme::Now();
  painter.setFont(SmallFont());
  painter.setPen(t.Ink2);
  const QRect line(0, 0, width(), LineHeight());
  const QString begin = Shown(strip_.Begin);
  const QString end = Shown(strip_.End);
  if (!strip_.Now) {
    painter.drawText(line, Qt::AlignLeft, begin);
    painter.drawText(line, Qt::AlignRight, end);
    return;
  }
  const int at = static_cast<int>(*strip_.Now * width());
  const int wide = QFontMetrics(SmallFont(QFont::Bold)).horizontalAdvance(now_);
  const int left = std::clamp(at - wide / 2, 0, std::max(0, width() - wide));
  const QFontMetrics metrics = painter.fontMetrics();
  if (left > metrics.horizontalAdvance(begin) + space::kXs) {
    painter.drawText(line, Qt::AlignLeft, begin);
  }
  if (left + wide + space::kXs < width() - metrics.horizontalAdvance(end)) {
    painter.drawText(line, Qt::AlignRight, end);
  }
  painter.setFont(SmallFont(QFont::Bold));
  painter.setPen(t.Now);
  painter.drawText(QRect(left, 0, wide, LineHeight()), Qt::AlignCenter, now_);
  painter.fillRect(QRect(at, ChipTop(), 2, ChipHeight() + space::kXs + kKaalHeight), t.Now);
}

void HoraStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (strip_.Horas.empty()) {
    painter.setPen(Theme::Now().Ink2);
    painter.drawText(rect(), Qt::AlignCenter, tr("The Sun does not rise or set today."));
    return;
  }
  PaintHoras(painter);
  PaintKaals(painter);
  PaintNow(painter);
}

QString HoraStrip::TipAt(const QPoint& point) const {
  const bool kaals = point.y() >= KaalTop() - 1;
  for (const panchang::StripPart& part : kaals ? strip_.Kaals : strip_.Horas) {
    if (BoxOf(part, 0, height()).contains(point)) {
      return Shown(part.Name + ", " + part.Times);
    }
  }
  return {};
}

bool HoraStrip::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TipAt(help->pos()), this);
    return true;
  }
  return QWidget::event(event);
}

}  // namespace orvex::ui
