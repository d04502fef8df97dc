#include "ui/horoscope/ruling_line.h"

#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

#include "ui/base/cell_text.h"
#include "ui/base/planet_chip.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kBetweenRulers = space::kS;

QFont RulerFont() { return Theme::Text(type::kHead); }
int LineHeight() { return ChipSize().height() + space::kS; }

}  // namespace

RulingLine::RulingLine(HoroscopeDocument& document) : document_(document) {
  setObjectName("rulingLine");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(&document, &HoroscopeDocument::PlanetChosen, this, [this] { update(); });
}

void RulingLine::ShowTable(const core::Table& rulingPlanets) {
  rulers_.clear();
  QStringList told;
  for (const core::Row& row : rulingPlanets.Rows) {
    const QString words = Shown(row.Cells.at(0).Text);
    const QString planet = Shown(row.Cells.at(1).Text);
    rulers_.push_back({words, CodeOfWord(planet)});
    told << words + ' ' + planet;
  }
  setAccessibleName(tr("Ruling planets: %1").arg(told.join(", ")));
  updateGeometry();
  update();
}

int RulingLine::WidthOf(const Ruler& ruler) const {
  return QFontMetrics(RulerFont()).horizontalAdvance(ruler.Words) + space::kXs + ChipSize().width();
}

std::size_t RulingLine::InOneLine() const {
  int wanted = 0;
  for (const Ruler& ruler : rulers_) {
    wanted += WidthOf(ruler) + kBetweenRulers;
  }
  return wanted - kBetweenRulers <= width() ? rulers_.size() : (rulers_.size() + 1) / 2;
}

int RulingLine::Lines() const { return InOneLine() < rulers_.size() ? 2 : 1; }

// The rulers of a line share its width.
QRect RulingLine::BoxOf(std::size_t row) const {
  const std::size_t inLine = InOneLine();
  const std::size_t line = row / inLine;
  const std::size_t first = line * inLine;
  const std::size_t end = std::min(rulers_.size(), first + inLine);
  int wanted = 0;
  int before = 0;
  for (std::size_t i = first; i < end; ++i) {
    before += i < row ? WidthOf(rulers_.at(i)) : 0;
    wanted += WidthOf(rulers_.at(i));
  }
  const auto gaps = static_cast<int>(std::max<std::size_t>(1, inLine - 1));
  const int gap = std::max(0, width() - wanted) / gaps;
  const int left = before + gap * static_cast<int>(row - first);
  return {left, line::kHair + static_cast<int>(line) * LineHeight(), WidthOf(rulers_.at(row)),
          LineHeight()};
}

QRect RulingLine::ChipBox(std::size_t row) const {
  const QRect box = BoxOf(row);
  const QSize chip = ChipSize();
  return {box.right() + 1 - chip.width(), box.top() + (box.height() - chip.height()) / 2,
          chip.width(), chip.height()};
}

QSize RulingLine::sizeHint() const { return {1, line::kHair + Lines() * LineHeight()}; }
QSize RulingLine::minimumSizeHint() const { return sizeHint(); }

void RulingLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (sizeHint().height() != height()) {
    updateGeometry();
  }
}

void RulingLine::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(QRect(0, 0, width(), line::kHair), t.Rule2);
  painter.setFont(RulerFont());
  for (std::size_t row = 0; row < rulers_.size(); ++row) {
    const Ruler& ruler = rulers_.at(row);
    painter.setPen(t.Ink2);
    painter.drawText(BoxOf(row), Qt::AlignLeft | Qt::AlignVCenter, ruler.Words);
    if (!ruler.Code.isEmpty()) {
      DrawChip(painter, ChipBox(row), ruler.Code, ruler.Code == document_.ChosenPlanet());
    }
  }
}

void RulingLine::mouseReleaseEvent(QMouseEvent* event) {
  for (std::size_t row = 0; row < rulers_.size(); ++row) {
    if (!rulers_.at(row).Code.isEmpty() && ChipBox(row).contains(event->pos())) {
      document_.ChoosePlanet(rulers_.at(row).Code);
      return;
    }
  }
}

}  // namespace orvex::ui
