#include "ui/horoscope/house_group_line.h"

#include <QPainter>
#include <algorithm>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

bool Holds(const std::vector<int>& houses, int house) {
  return std::find(houses.begin(), houses.end(), house) != houses.end();
}

}  // namespace

HouseRole RoleIn(const judgement::Matter& matter, int house) {
  return house == matter.MainCusp          ? HouseRole::Main
         : Holds(matter.Supporting, house) ? HouseRole::Supporting
         : Holds(matter.Denying, house)    ? HouseRole::Denying
                                           : HouseRole::None;
}

HouseGroupLine::HouseGroupLine() {
  setObjectName("houseGroup");
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void HouseGroupLine::ShowMatter(const judgement::Matter& matter) {
  matter_ = matter;
  const QString houses = Shown(judgement::HousesText(matter));
  setAccessibleName(tr("House group %1").arg(houses));
  setToolTip(matter.Source.empty()
                 ? houses
                 : tr("%1\nSource: %2").arg(houses, Shown(matter.Source)).toHtmlEscaped());
  updateGeometry();
  update();
}

std::vector<HouseGroupLine::Part> HouseGroupLine::LayOut() const {
  std::vector<Part> parts;
  int left = 0;
  const int mark = HouseMarkSize().width();
  const auto addWord = [&](const QString& word) {
    const int width = fontMetrics().horizontalAdvance(word);
    parts.push_back({QRect(left, 0, width, height()), word});
    left += width + space::kS;
  };
  const auto addHouses = [&](const std::vector<int>& houses) {
    for (const int house : houses) {
      parts.push_back({QRect(left, 0, mark, height()), WholeText(house), RoleIn(matter_, house)});
      left += mark + space::kXs;
    }
    left += space::kS;
  };
  addWord(tr("Main"));
  addHouses({matter_.MainCusp});
  if (!matter_.Supporting.empty()) {
    addWord(tr("supporting"));
    addHouses(matter_.Supporting);
  }
  if (!matter_.Denying.empty()) {
    addWord(tr("denying"));
    addHouses(matter_.Denying);
  }
  return parts;
}

QSize HouseGroupLine::sizeHint() const {
  return {LayOut().back().Box.right() + space::kXs, HouseMarkSize().height() + space::kXs};
}

void HouseGroupLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  for (const Part& part : LayOut()) {
    if (part.Role == HouseRole::None) {
      painter.setPen(Theme::Now().Ink2);
      painter.drawText(part.Box, Qt::AlignVCenter | Qt::AlignLeft, part.Text);
    } else {
      DrawHouseMark(painter, part.Box, part.Text, part.Role);
    }
  }
}

}  // namespace orvex::ui
