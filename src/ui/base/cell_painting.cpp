#include "ui/base/cell_painting.h"

#include <QPainter>
#include <algorithm>

#include "core/exact_numbers.h"
#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kSignWidth = 20;  // two letters

HouseRole RoleOfHouse(const QString& house, const HouseRoles& roles) {
  return roles ? roles(house.toInt()) : HouseRole::None;
}

int WidthOfHouse(const QString& house, HouseRole role) {
  const QFontMetrics plain(Theme::Text(type::kText));
  return role == HouseRole::None ? plain.horizontalAdvance(house) + kCellGap
                                 : HouseMarkSize().width();
}

}  // namespace

void PaintHeatCell(QPainter& painter, const QStyleOptionViewItem& option) {
  const Tokens& t = Theme::Now();
  const QString& text = option.text;
  const std::optional<std::int64_t> count = core::ParseWhole(Typed(text));
  const std::size_t steps = t.Heat.size();
  std::size_t step = text == "Yes" ? 2 : 0;
  if (count && *count > 0) {
    step = std::min<std::size_t>(static_cast<std::size_t>(*count), steps);
  }
  painter.setPen(count && *count == 0 ? t.Ink3 : InkOf(option));
  if (step > 0) {
    painter.fillRect(option.rect.adjusted(0, 0, -1, -1), t.Heat.at(step - 1));
    painter.setPen(t.HeatText.at(step - 1));
  }
  QFont font = option.font;
  font.setBold(step > 1 && count.has_value());
  painter.setFont(font);
  painter.drawText(option.rect, Qt::AlignCenter, text);
}

void PaintCellText(QPainter& painter, const QStyleOptionViewItem& option) {
  painter.setFont(option.font);
  painter.setPen(InkOf(option));
  const QRect room = option.rect.adjusted(kCellPad, 0, -kCellPad / 2, 0);
  const QFontMetrics metrics(option.font);
  const auto lines = static_cast<int>(option.text.count(QChar::LineSeparator)) + 1;
  if (lines > 1 && lines * metrics.lineSpacing() <= room.height()) {
    painter.drawText(room, static_cast<int>(option.displayAlignment), option.text);
    return;
  }
  const QString line = QString(option.text).replace(QChar::LineSeparator, ' ');
  painter.drawText(room, static_cast<int>(option.displayAlignment) | Qt::TextSingleLine,
                   metrics.elidedText(line, Qt::ElideRight, room.width()));
}

void PaintDegreeCell(QPainter& painter, const QStyleOptionViewItem& option) {
  const std::optional<DegreeText> degree = ShownDegree(option.text);
  if (!degree) {
    QStyleOptionViewItem stored = option;
    stored.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    PaintCellText(painter, stored);
    return;
  }
  const int sign = kSignWidth * Theme::TextSize() / 100;
  const QRect room = option.rect.adjusted(kCellPad, 0, -kCellPad, 0);
  painter.setFont(option.font);
  painter.setPen(Theme::Now().Ink2);
  painter.drawText(QRect(room.right() - sign, room.top(), sign, room.height()),
                   Qt::AlignVCenter | Qt::AlignLeft, degree->Sign);
  painter.setPen(InkOf(option));
  painter.drawText(room.adjusted(0, 0, -sign - kCellGap, 0), Qt::AlignVCenter | Qt::AlignRight,
                   degree->Figures);
}

int WidthOfHouses(const QString& houses, const HouseRoles& roles) {
  int width = kCellPad;
  for (const QString& house : houses.split(' ', Qt::SkipEmptyParts)) {
    width += WidthOfHouse(house, RoleOfHouse(house, roles)) + kCellGap;
  }
  return width;
}

void PaintHousesCell(QPainter& painter, const QStyleOptionViewItem& option,
                     const HouseRoles& roles) {
  int left = option.rect.left() + kCellPad;
  for (const QString& house : option.text.split(' ', Qt::SkipEmptyParts)) {
    const HouseRole role = RoleOfHouse(house, roles);
    const int width = WidthOfHouse(house, role);
    DrawHouseMark(painter, QRect(left, option.rect.top(), width, option.rect.height()), house,
                  role);
    left += width + kCellGap;
  }
}

}  // namespace orvex::ui
