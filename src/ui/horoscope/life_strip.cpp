#include "ui/horoscope/life_strip.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr std::size_t kRows = 2;
constexpr int kBar = 24;
constexpr int kWords = 14;  // the line of ages above, the word of today below
constexpr int kHeight = 2 * kBar + 3 * kWords;
constexpr int kDecade = 10;
constexpr double kDaysOfYear = 365.25;
constexpr int kPaperWidth = 760;  // on paper: pixels of a strip as wide as the page, their text
constexpr int kPaperText = 11;

QFont PaperFont(QFont::Weight weight) {
  QFont font = Theme::Text(type::kHead, weight);
  font.setPixelSize(kPaperText);
  return font;
}

}  // namespace

LifeStrip::LifeStrip(HoroscopeDocument& document) : document_(document) {
  setObjectName("lifeStrip");
  setAccessibleName(tr("Dashas of the life and bhuktis of the chosen one"));
  setFocusPolicy(Qt::StrongFocus);
  setFixedHeight(kHeight);
}

void LifeStrip::ShowModel() {
  picture_ = PictureOfDashas(document_.Model(), document_.Place().Session.Time.Today());
  update();
}

QRect LifeStrip::RowBox(std::size_t level, int width) {
  const int top = kWords + static_cast<int>(level) * (kBar + kWords);
  return {1, top, width - 2, kBar};
}

int LifeStrip::XOf(std::size_t level, core::DateTime day, int width) const {
  const std::vector<TimelinePeriod>& periods = picture_.Levels.at(level).Periods;
  const QRect box = RowBox(level, width);
  // The first Dasha began before birth; the strip begins with the life.
  const core::DateTime start = level == 0 ? picture_.Birth : periods.front().Start;
  const auto whole = std::max<std::int64_t>(1, core::DaysBetween(start, periods.back().End));
  const auto until = std::clamp<std::int64_t>(core::DaysBetween(start, day), 0, whole);
  return box.left() + static_cast<int>(until * box.width() / whole);
}

QRect LifeStrip::BarBox(const BarPlace& bar, int width) const {
  const TimelinePeriod& period = picture_.Levels.at(bar.Level).Periods.at(bar.Row);
  const QRect box = RowBox(bar.Level, width);
  const int left = XOf(bar.Level, period.Start, width);
  return {left, box.top(), XOf(bar.Level, period.End, width) - left, box.height()};
}

std::optional<BarPlace> LifeStrip::BarUnder(const QPoint& point) const {
  for (std::size_t level = 0; level < kRows; ++level) {
    for (std::size_t row = 0; row < picture_.Levels.at(level).Periods.size(); ++row) {
      if (BarBox({level, row}, width()).contains(point)) {
        return BarPlace{level, row};
      }
    }
  }
  return std::nullopt;
}

void LifeStrip::PaintBars(QPainter& painter, std::size_t level, const Look& look) const {
  const Tokens& t = look.Colors;
  const TimelineLevel& bars = picture_.Levels.at(level);
  painter.setFont(look.Bold);
  for (std::size_t row = 0; row < bars.Periods.size(); ++row) {
    const QRect box = BarBox({level, row}, look.Width).adjusted(0, 0, -1, 0);
    const QString name = Shown(bars.Periods[row].Planet);
    const ChipColors colors = ChipOf(t, CodeOfWord(name));
    painter.fillRect(box, colors.Ground);
    painter.setPen(colors.Letters);
    const bool fits = painter.fontMetrics().horizontalAdvance(name) + space::kXs < box.width();
    const QString code = CodeOfWord(name);
    const bool holdsCode = painter.fontMetrics().horizontalAdvance(code) < box.width();
    painter.drawText(box, Qt::AlignCenter, fits ? name : holdsCode ? code : QString());
    if (bars.Chosen == row) {
      painter.setPen(QPen(t.Ink, line::kFocus));
      painter.drawRect(box.adjusted(1, 1, -1, -1));
    }
  }
}

void LifeStrip::PaintToday(QPainter& painter, std::size_t level, const Look& look) const {
  const TimelineLevel& bars = picture_.Levels.at(level);
  if (!PeriodHolding(bars, picture_.Today)) {
    return;
  }
  const Tokens& t = look.Colors;
  const QRect box = RowBox(level, look.Width);
  const int x = XOf(level, picture_.Today, look.Width);
  painter.fillRect(QRect(x - 1, box.top() - 2, line::kHead, box.height() + 4), t.Now);
  if (level > 0) {
    return;  // the dates stand there
  }
  painter.setPen(t.Now);
  painter.setFont(look.Bold);
  const QString word = tr("today");
  const int wide = painter.fontMetrics().horizontalAdvance(word);
  const int left = std::clamp(x - wide / 2, 0, look.Width - wide);
  painter.drawText(QRect(left, box.bottom() + 1, wide, kWords), Qt::AlignCenter, word);
}

void LifeStrip::PaintAges(QPainter& painter, const Look& look) const {
  painter.setFont(look.Words);
  painter.setPen(look.Colors.Ink2);
  const core::DateTime end = picture_.Levels.front().Periods.back().End;
  const auto years =
      static_cast<int>(static_cast<double>(core::DaysBetween(picture_.Birth, end)) / kDaysOfYear);
  for (int age = 0; age <= years; age += kDecade) {
    const core::DateTime day = core::DateAdd(
        core::DateInterval::Days, static_cast<std::int64_t>(age * kDaysOfYear), picture_.Birth);
    const QString text = age == 0 ? tr("age 0") : WholeText(age);
    const int wide = painter.fontMetrics().horizontalAdvance(text);
    const int left = std::clamp(XOf(0, day, look.Width) - wide / 2, 0, look.Width - wide);
    painter.drawText(QRect(left, 0, wide, kWords), Qt::AlignCenter, text);
  }
}

// From the chosen dasha to its bhuktis.
void LifeStrip::PaintCone(QPainter& painter, const Look& look) const {
  const std::optional<std::size_t> chosen = picture_.Levels.front().Chosen;
  if (!chosen || picture_.Levels.at(1).Periods.empty()) {
    return;
  }
  const QRect from = BarBox({0, *chosen}, look.Width);
  const QRect to = RowBox(1, look.Width);
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.Colors.Sunk);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPolygon(QPolygon({{from.left(), from.bottom() + 1},
                                {from.right() + 1, from.bottom() + 1},
                                {to.right() + 1, to.top()},
                                {to.left(), to.top()}}));
  painter.restore();
}

// Where the bhuktis begin and the last one ends, "Nov 2010"; those that find room.
void LifeStrip::PaintStarts(QPainter& painter, const Look& look) const {
  painter.setFont(look.Words);
  painter.setPen(look.Colors.Ink2);
  const QRect box = RowBox(1, look.Width);
  int free = 0;
  const auto write = [&](core::DateTime day, int x, int until) {
    const QString month = Shown(core::LongDateText(day, true)).section(' ', 1);
    const int wide = painter.fontMetrics().horizontalAdvance(month);
    const int left = std::clamp(x - wide / 2, 0, look.Width - wide);
    if (left >= free && left + wide <= until) {
      painter.drawText(QRect(left, box.bottom() + 1, wide, kWords), Qt::AlignCenter, month);
      free = left + wide + space::kS;
    }
  };
  const std::vector<TimelinePeriod>& periods = picture_.Levels.at(1).Periods;
  const int forLast = painter.fontMetrics().horizontalAdvance("Nov 2000") + space::kS;
  for (const TimelinePeriod& period : periods) {
    write(period.Start, XOf(1, period.Start, look.Width), look.Width - forLast);
  }
  write(periods.back().End, box.right(), look.Width);
}

void LifeStrip::Paint(QPainter& painter, const Look& look) const {
  PaintCone(painter, look);
  PaintAges(painter, look);
  for (std::size_t level = 0; level < kRows; ++level) {
    if (!picture_.Levels.at(level).Periods.empty()) {
      PaintBars(painter, level, look);
      PaintToday(painter, level, look);
    }
  }
  if (!picture_.Levels.at(1).Periods.empty()) {
    PaintStarts(painter, look);
  }
}

std::vector<PageBlock> LifeStrip::PrintedBlocks() const {
  if (picture_.Levels.front().Periods.empty()) {
    return {};
  }
  constexpr double kAspect = static_cast<double>(kHeight) / kPaperWidth;
  return {{PageFigures{{{{}, 1, kAspect, [this](QPainter& painter, const QRectF& box) {
                           painter.translate(box.topLeft());
                           const double scale = box.width() / kPaperWidth;
                           painter.scale(scale, scale);
                           Paint(painter, {kPaperWidth, TokensOf(ThemeMode::Light),
                                           PaperFont(QFont::Normal), PaperFont(QFont::Bold)});
                         }}}}}};
}

void LifeStrip::paintEvent(QPaintEvent* /*event*/) {
  if (picture_.Levels.front().Periods.empty()) {
    return;
  }
  QPainter painter(this);
  Paint(painter,
        {width(), Theme::Now(), Theme::Text(type::kHead), Theme::Text(type::kHead, QFont::Bold)});
  if (hasFocus()) {
    painter.fillRect(QRect(0, height() - line::kFocus, width(), line::kFocus), Theme::Now().Accent);
  }
}

bool LifeStrip::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const std::optional<BarPlace> bar = BarUnder(help->pos());
    QToolTip::showText(help->globalPos(), bar ? TimelineHint(picture_, *bar) : QString(), this);
    return true;
  }
  return QWidget::event(event);
}

void LifeStrip::mousePressEvent(QMouseEvent* event) {
  if (const std::optional<BarPlace> bar = BarUnder(event->position().toPoint())) {
    emit PeriodChosen(bar->Level, bar->Row);
  }
}

// Left and Right choose the dasha before and after.
void LifeStrip::keyPressEvent(QKeyEvent* event) {
  const TimelineLevel& dashas = picture_.Levels.front();
  const int by = event->key() == Qt::Key_Right ? 1 : event->key() == Qt::Key_Left ? -1 : 0;
  if (by == 0 || !dashas.Chosen) {
    QWidget::keyPressEvent(event);
    return;
  }
  const auto wanted = static_cast<std::ptrdiff_t>(*dashas.Chosen) + by;
  if (wanted >= 0 && wanted < static_cast<std::ptrdiff_t>(dashas.Periods.size())) {
    emit PeriodChosen(0, static_cast<std::size_t>(wanted));
  }
}

}  // namespace orvex::ui
