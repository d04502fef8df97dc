#include "ui/horoscope/periods_label.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/base/cell_delegate.h"
#include "ui/base/cell_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

PeriodsLabel::PeriodsLabel(HoroscopeDocument& document) : document_(document) {
  setObjectName("CurrentDBA");
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  connect(&document, &HoroscopeDocument::PlanetChosen, this, [this] { update(); });
}

// "Current DBA: Rahu/Sun/Mercury  |  Current BCP House: 6": words before the colon, chips, the end,
// words behind the bar.
std::vector<PeriodsLabel::Part> PeriodsLabel::LayOut() const {
  std::vector<Part> parts;
  int left = 0;
  const auto add = [&](const QString& words) {
    const int width = fontMetrics().horizontalAdvance(words);
    parts.push_back({QRect(left, 0, width, height()), words, {}});
    left += width + space::kXs;
  };
  const QString running = text().section('|', 0, 0).trimmed();
  add(running.section(':', 0, 0) + ':');
  const QSize chip = ChipSize();
  bool follows = false;
  for (const QString& name : running.section(':', 1).trimmed().split('/', Qt::SkipEmptyParts)) {
    if (follows) {
      add("›");
    }
    follows = true;
    const QString code = CodeOfWord(name.trimmed());
    if (code.isEmpty()) {
      add(name.trimmed());
      continue;
    }
    parts.push_back(
        {QRect(left, (height() - chip.height()) / 2, chip.width(), chip.height()), code, code});
    left += chip.width() + space::kXs;
  }
  if (follows && !document_.RunningEnd().isEmpty()) {
    add(tr("until %1").arg(document_.RunningEnd()));
  }
  left += space::kS;
  add(text().section('|', 1).trimmed());
  return parts;
}

QSize PeriodsLabel::sizeHint() const {
  return {LayOut().back().Box.right() + space::kXs, ChipSize().height() + 2};
}

QSize PeriodsLabel::minimumSizeHint() const { return {0, ChipSize().height() + 2}; }

void PeriodsLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  for (const Part& part : LayOut()) {
    if (part.Code.isEmpty()) {
      painter.setPen(Theme::Now().Ink2);
      painter.drawText(part.Box, Qt::AlignVCenter | Qt::AlignLeft, part.Text);
    } else {
      DrawChip(painter, part.Box, part.Code, part.Code == document_.ChosenPlanet());
    }
  }
}

void PeriodsLabel::mouseReleaseEvent(QMouseEvent* event) {
  for (const Part& part : LayOut()) {
    if (!part.Code.isEmpty() && part.Box.contains(event->position().toPoint())) {
      document_.ChoosePlanet(part.Code);
      return;
    }
  }
}

}  // namespace orvex::ui
