// Paints the monthly grid: the day by two letters and its figure, the sign small beside the degree;
// a sign that a planet enters as a filled tag, a station as a framed letter, a retrograde run as a
// dashed line at its left.
#pragma once

#include <QStyledItemDelegate>

#include "transit/month_cells.h"

namespace orvex::ui {

// "8 Sc", the tag of a cell in which a planet enters its sign.
QString SignTag(int sign);

// The frame of a station at the left of a box, and the tag of a sign; both give their width.
int DrawStation(QPainter& painter, const QRect& box, bool retrograde);
int DrawSignTag(QPainter& painter, const QRect& box, const QString& text);
// The dashed line at the left of a retrograde planet.
void DrawRetrogradeLine(QPainter& painter, const QRect& box);

class MonthCellDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit MonthCellDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

  // What the cells tell, by row; `today` is a row, -1 for none.
  void SetCells(std::vector<transit::MonthCellRow> cells, int today);
  const transit::MonthCell& CellAt(int row, int column) const;

  // The pixels that a day and a planet need.
  static int LeastDayWidth();
  static int LeastPlanetWidth();

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  void PaintDay(QPainter& painter, const QRect& box, const QModelIndex& index) const;
  void PaintPlanet(QPainter& painter, const QRect& box, const transit::MonthCell& cell) const;

  std::vector<transit::MonthCellRow> cells_;
  int today_ = -1;
};

}  // namespace orvex::ui
