#include "ui/horoscope/period_strip.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "core/exact_numbers.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

using judgement::MatterPeriodColumn;

constexpr int kNumbered = 8;   // ranks that are told
constexpr int kTextLine = 13;  // the line of ranks above, of years below
constexpr int kTall = 16;
constexpr int kMiddle = 9;
constexpr int kLow = 3;
constexpr int kMostYears = 12;  // that are written side by side

// Between the accent and the sheet.
QColor Halfway(const Tokens& t) {
  const auto mix = [](int one, int other) { return (one + other) / 2; };
  return {mix(t.Accent.red(), t.Sheet.red()), mix(t.Accent.green(), t.Sheet.green()),
          mix(t.Accent.blue(), t.Sheet.blue())};
}

core::DateTime NewYear(int year) {
  return core::MakeDateTime({year, 1, 1, 0, 0, 0}).value_or(core::DateTime{});
}

}  // namespace

PeriodStrip::PeriodStrip() {
  setObjectName("periodStrip");
  setAccessibleName(tr("Ranked periods along their years"));
  setFixedHeight(kTall + 2 * kTextLine + 2);
}

void PeriodStrip::Show(const core::Table& matterPeriods, const judgement::PeriodWindow& window,
                       core::DateTime now) {
  bars_.clear();
  for (std::size_t row = 0; row < matterPeriods.Rows.size(); ++row) {
    const auto cell = [&](MatterPeriodColumn column) -> const core::Cell& {
      return matterPeriods.At(row, column);
    };
    Bar bar{judgement::MomentOfPeriod(cell(MatterPeriodColumn::From)),
            judgement::MomentOfPeriod(cell(MatterPeriodColumn::Until)),
            static_cast<int>(core::ParseWhole(cell(MatterPeriodColumn::Score).Text).value_or(0)),
            {}};
    bar.Words = tr("%1. %2 - %3 - %4, %5 to %6, score %7")
                    .arg(row + 1)
                    .arg(Shown(cell(MatterPeriodColumn::Dasha).Text),
                         Shown(cell(MatterPeriodColumn::Bhukti).Text),
                         Shown(cell(MatterPeriodColumn::Antara).Text),
                         Shown(cell(MatterPeriodColumn::From).Text),
                         Shown(cell(MatterPeriodColumn::Until).Text))
                    .arg(bar.Score);
    bars_.push_back(std::move(bar));
  }
  window_ = window;
  now_ = now;
  chosen_ = -1;
  update();
}

void PeriodStrip::Choose(int row) {
  chosen_ = row;
  update();
}

int PeriodStrip::XOf(core::DateTime moment) const {
  const auto whole = std::max<std::int64_t>(1, (window_.To - window_.From).count());
  const auto until = std::clamp<std::int64_t>((moment - window_.From).count(), 0, whole);
  return static_cast<int>(until * (width() - 1) / whole);
}

QRect PeriodStrip::BoxOf(int row) const {
  const Bar& bar = bars_.at(static_cast<std::size_t>(row));
  const int high = row < kNumbered && bar.Score > 0 ? kTall : bar.Score > 0 ? kMiddle : kLow;
  const int left = XOf(bar.From);
  return {left, kTextLine + kTall - high, std::max(1, XOf(bar.Until) - left), high};
}

int PeriodStrip::PeriodAt(const QPoint& point) const {
  for (int row = 0; row < static_cast<int>(bars_.size()); ++row) {
    const QRect box = BoxOf(row);
    if (point.x() >= box.left() && point.x() <= box.right()) {
      return row;
    }
  }
  return -1;
}

void PeriodStrip::PaintBars(QPainter& painter) const {
  const Tokens& t = Theme::Now();
  for (int row = static_cast<int>(bars_.size()) - 1; row >= 0; --row) {
    const QRect box = BoxOf(row);
    const bool best = box.height() == kTall;
    const QColor ground = best ? t.Accent : box.height() == kMiddle ? Halfway(t) : t.Edge;
    painter.fillRect(box.adjusted(0, 0, box.width() > 2 ? -1 : 0, 0), ground);
    if (row == chosen_) {
      painter.fillRect(QRect(box.left(), kTextLine + kTall, box.width(), line::kHead), t.Ink);
    }
  }
}

// The rank of each of the best above its bar; where two have no room, the better one's.
void PeriodStrip::PaintRanks(QPainter& painter) const {
  painter.setFont(Theme::Text(type::kHead, QFont::Bold));
  painter.setPen(Theme::Now().Ink);
  std::vector<QRect> taken;
  for (int row = 0; row < std::min(kNumbered, static_cast<int>(bars_.size())); ++row) {
    const QRect bar = BoxOf(row);
    const QString rank = WholeText(row + 1);
    const int wide = painter.fontMetrics().horizontalAdvance(rank) + 2;
    const QRect box(std::clamp(bar.center().x() - wide / 2, 0, std::max(0, width() - wide)), 0,
                    wide, kTextLine);
    const bool free = std::none_of(taken.begin(), taken.end(),
                                   [&box](const QRect& other) { return other.intersects(box); });
    if (bar.height() == kTall && free) {
      painter.drawText(box, Qt::AlignCenter, rank);
      taken.push_back(box);
    }
  }
}

void PeriodStrip::PaintYears(QPainter& painter) const {
  const Tokens& t = Theme::Now();
  painter.setFont(Theme::Text(type::kHead));
  painter.setPen(t.Ink2);
  const int first = core::PartsOf(window_.From).Year;
  const int last = core::PartsOf(window_.To).Year;
  int step = 1;
  for (const int wider : {2, 5, 10, 20}) {
    step = (last - first) / step > kMostYears ? wider : step;
  }
  for (int year = first + 1; year <= last; ++year) {
    if (year % step != 0) {
      continue;
    }
    const int x = XOf(NewYear(year));
    painter.fillRect(QRect(x, kTextLine + kTall, 1, space::kXs), t.Edge);
    const QString text = WholeText(year);
    const int wide = painter.fontMetrics().horizontalAdvance(text);
    painter.drawText(QRect(std::clamp(x - wide / 2, 0, std::max(0, width() - wide)),
                           kTextLine + kTall + 2, wide, kTextLine),
                     Qt::AlignCenter, text);
  }
}

void PeriodStrip::paintEvent(QPaintEvent* /*event*/) {
  if (window_.To <= window_.From) {
    return;
  }
  QPainter painter(this);
  painter.fillRect(QRect(0, kTextLine, width(), kTall), Theme::Now().Sunk);
  PaintBars(painter);
  PaintRanks(painter);
  PaintYears(painter);
  if (now_ > window_.From && now_ < window_.To) {
    painter.fillRect(QRect(XOf(now_), kTextLine - 2, line::kHead, kTall + 2), Theme::Now().Now);
  }
}

bool PeriodStrip::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const int row = PeriodAt(help->pos());
    QToolTip::showText(help->globalPos(),
                       row < 0 ? QString() : bars_.at(static_cast<std::size_t>(row)).Words, this);
    return true;
  }
  return QWidget::event(event);
}

void PeriodStrip::mousePressEvent(QMouseEvent* event) {
  const int row = PeriodAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && row >= 0) {
    emit PeriodClicked(row);
  }
}

}  // namespace orvex::ui
