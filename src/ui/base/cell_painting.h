// How the contents of a cell are painted that are no chips. Each draws the text of the option into
// its rectangle.
#pragma once

#include <QStyleOptionViewItem>
#include <functional>

#include "ui/base/house_mark.h"
#include "ui/base/tokens.h"

class QPainter;

namespace orvex::ui {

// Pixels before the contents of a cell, and between its parts.
inline constexpr int kCellPad = space::kS;
inline constexpr int kCellGap = space::kXs;

// The ink of the texts of a cell.
inline QColor InkOf(const QStyleOptionViewItem& option) {
  return option.palette.color(QPalette::Text);
}

// In one line, cut with "…", aligned as the option says.
void PaintCellText(QPainter& painter, const QStyleOptionViewItem& option);

// A count on the ground of its step.
void PaintHeatCell(QPainter& painter, const QStyleOptionViewItem& option);

// A degree of the circle in its sign; any other text as it stands.
void PaintDegreeCell(QPainter& painter, const QStyleOptionViewItem& option);

// What a house is to the matter.
using HouseRoles = std::function<HouseRole(int house)>;

// Houses with blanks between them, each by its role, and the pixels that they take.
int WidthOfHouses(const QString& houses, const HouseRoles& roles);
void PaintHousesCell(QPainter& painter, const QStyleOptionViewItem& option,
                     const HouseRoles& roles);

}  // namespace orvex::ui
