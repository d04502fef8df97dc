#include "ui/main/period_bars.h"

#include <QPainter>

#include "ui/base/cell_delegate.h"
#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kUsualBars = 150;
constexpr int kBar = 3;

QFont RowFont() { return Theme::Text(type::kSmall); }

}  // namespace

PeriodBars::PeriodBars() {
  setObjectName("runningPeriods");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

int PeriodBars::RowHeight() const { return ChipSize().height() + kBar + space::kS; }

QSize PeriodBars::sizeHint() const {
  return {kUsualBars, static_cast<int>(periods_.size()) * RowHeight()};
}

QSize PeriodBars::minimumSizeHint() const { return {0, sizeHint().height()}; }

void PeriodBars::ShowPeriods(const std::vector<horoscope::CardPeriod>& periods) {
  constexpr double kWhole = 100;
  periods_ = periods;
  QStringList words;
  for (const horoscope::CardPeriod& period : periods_) {
    words << tr("%1 %2 until %3, %4 per cent over")
                 .arg(Shown(period.Level), Shown(period.Planet), Shown(period.End))
                 .arg(static_cast<int>(period.Share * kWhole));
  }
  setAccessibleName(tr("Running periods"));
  setAccessibleDescription(words.join("; "));
  setToolTip(words.join('\n'));
  updateGeometry();
  update();
}

void PeriodBars::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.setFont(RowFont());
  const QFontMetrics metrics = painter.fontMetrics();
  const QSize chip = ChipSize();
  const int names = metrics.horizontalAdvance("Sookshma") + space::kS;
  for (std::size_t i = 0; i < periods_.size(); ++i) {
    const horoscope::CardPeriod& period = periods_[i];
    const QRect row(0, static_cast<int>(i) * RowHeight(), width(), chip.height());
    painter.setFont(RowFont());
    painter.setPen(t.Ink2);
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, Shown(period.Level));
    const QString end = Shown(period.End);
    painter.setPen(t.Ink);
    painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, end);
    DrawChip(painter, QRect(QPoint(names, row.top()), chip), CodeOfWord(Shown(period.Planet)),
             false);
    const QRect bar(0, row.bottom() + space::kXs, width(), kBar);
    painter.fillRect(bar, t.Rule);
    painter.fillRect(
        QRect(bar.topLeft(), QSize(static_cast<int>(bar.width() * period.Share), kBar)), t.Accent);
  }
}

}  // namespace orvex::ui
