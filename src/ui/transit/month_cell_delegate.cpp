#include "ui/transit/month_cell_delegate.h"

#include <QAbstractItemView>
#include <QPainter>

#include "chart/sign_degree.h"
#include "ui/base/planet_chip.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"

namespace orvex::ui {

namespace {

constexpr int kInset = 4;      // pixels before a tag
constexpr int kSignRoom = 16;  // a sign's figures
constexpr int kTagPad = 3;
constexpr int kDegreePad = 6;

QFont SignFont() { return Theme::Text(type::kHead); }
QFont DegreeFont() { return Theme::Text(type::kText); }
QString TodayWord() { return MonthCellDelegate::tr("today"); }

int WidthIn(const QFont& font, const QString& text) {
  return QFontMetrics(font).horizontalAdvance(text);
}

// A box of that width and of the height of its text, in the middle of a row.
QRect TagBox(const QRect& row, int left, int width) {
  const int height = std::min(row.height() - 2, QFontMetrics(ChipFont()).height());
  return {left, row.top() + (row.height() - 1 - height) / 2, width, height};
}

void PaintGround(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
  const Tokens& t = Theme::Now();
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  const QModelIndex current = view != nullptr ? view->currentIndex() : QModelIndex();
  const QVariant own = index.data(Qt::BackgroundRole);
  if (current.isValid() && current.row() == index.row()) {
    painter.fillRect(option.rect, t.Sel);
  } else if (own.isValid()) {
    painter.fillRect(option.rect, own.value<QBrush>());
  }
  const QRect& box = option.rect;
  painter.fillRect(QRect(box.left(), box.bottom(), box.width(), line::kHair), t.Rule);
  if (index.column() > 0) {
    painter.fillRect(QRect(box.left(), box.top(), line::kHair, box.height()), t.Rule);
  }
}

// The cell that Enter opens, within its row.
void PaintCurrent(QPainter& painter, const QStyleOptionViewItem& option) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Theme::Now().Accent, line::kFocus));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), radius::kChip, radius::kChip);
}

}  // namespace

QString SignTag(int sign) {
  return WholeText(sign) + ' ' + chart::kSignLetters.at(static_cast<std::size_t>(sign - 1));
}

int DrawSignTag(QPainter& painter, const QRect& row, const QString& text) {
  const Tokens& t = Theme::Now();
  const QRect box = TagBox(row, row.left(), WidthIn(ChipFont(), text) + 2 * kTagPad);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(t.Accent);
  painter.drawRoundedRect(box, radius::kChip, radius::kChip);
  painter.setFont(ChipFont());
  painter.setPen(t.OnAccent);
  painter.drawText(box, Qt::AlignCenter, text);
  painter.restore();
  return box.width();
}

int DrawStation(QPainter& painter, const QRect& row, bool retrograde) {
  const Tokens& t = Theme::Now();
  const QRect box = TagBox(row, row.left(), WidthIn(ChipFont(), "R") + 2 * kTagPad - 1);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(t.Now);
  painter.setBrush(t.Sheet);
  painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
  painter.setFont(ChipFont());
  painter.drawText(box, Qt::AlignCenter, retrograde ? "R" : "D");
  painter.restore();
  return box.width();
}

void DrawRetrogradeLine(QPainter& painter, const QRect& box) {
  painter.save();
  QPen pen(Theme::Now().Now, line::kHair);
  pen.setDashPattern({3, 2});
  painter.setPen(pen);
  painter.drawLine(box.topLeft(), box.bottomLeft());
  painter.restore();
}

void MonthCellDelegate::SetCells(std::vector<transit::MonthCellRow> cells, int today) {
  cells_ = std::move(cells);
  today_ = today;
}

const transit::MonthCell& MonthCellDelegate::CellAt(int row, int column) const {
  static const transit::MonthCell kNone;
  const auto day = static_cast<std::size_t>(row);
  const auto planet = static_cast<std::size_t>(column - 1);
  return column > 0 && day < cells_.size() && planet < cells_[day].size() ? cells_[day][planet]
                                                                          : kNone;
}

int MonthCellDelegate::LeastDayWidth() {
  return WidthIn(DegreeFont(), "We ") + WidthIn(Theme::Text(type::kText, QFont::Bold), "24 ") +
         WidthIn(SignFont(), TodayWord()) + space::kS;
}

int MonthCellDelegate::LeastPlanetWidth() {
  constexpr int kGap = 2;
  int tag = 0;
  for (std::size_t sign = 1; sign <= chart::kSignLetters.size(); ++sign) {
    tag = std::max(tag, WidthIn(ChipFont(), SignTag(static_cast<int>(sign))));
  }
  return kInset + tag + 2 * kTagPad + kGap + WidthIn(DegreeFont(), "29.97") + kDegreePad;
}

// "Tu 24" of the cell's "Tuesday 24 Nov 2026".
void MonthCellDelegate::PaintDay(QPainter& painter, const QRect& box,
                                 const QModelIndex& index) const {
  constexpr int kLetters = 2;
  const Tokens& t = Theme::Now();
  const QString date = index.data().toString();
  const bool today = index.row() == today_;
  QRect room = box.adjusted(space::kXs, 0, -space::kXs, 0);
  const QString letters = date.left(kLetters) + ' ';
  painter.setFont(DegreeFont());
  painter.setPen(t.Ink);
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, letters);
  room.setLeft(room.left() + WidthIn(DegreeFont(), letters));
  painter.setFont(Theme::Text(type::kText, QFont::Bold));
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, date.section(' ', 1, 1));
  if (today) {
    painter.setFont(SignFont());
    painter.setPen(t.Now);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignRight, TodayWord());
  }
}

void MonthCellDelegate::PaintPlanet(QPainter& painter, const QRect& box,
                                    const transit::MonthCell& cell) const {
  const Tokens& t = Theme::Now();
  if (cell.Sign == 0) {
    return;
  }
  if (cell.Retrograde) {
    DrawRetrogradeLine(painter, box);
  }
  int left = box.left() + kInset;
  if (cell.EntersSign) {
    left += DrawSignTag(painter, QRect(left, box.top(), 0, box.height()), SignTag(cell.Sign));
  } else {
    const int room = Scaled(kSignRoom);
    painter.setFont(SignFont());
    painter.setPen(t.Ink2);
    painter.drawText(QRect(left, box.top(), room + kInset, box.height()), Qt::AlignCenter,
                     WholeText(cell.Sign));
    left += room;
  }
  if (cell.Turns) {
    DrawStation(painter, QRect(left + 2, box.top(), 0, box.height()), cell.Retrograde);
  }
  painter.setFont(DegreeFont());
  painter.setPen(cell.Retrograde ? t.Now : t.Ink);
  painter.drawText(box.adjusted(0, 0, -kDegreePad, 0), Qt::AlignVCenter | Qt::AlignRight,
                   Shown(cell.Degree));
}

void MonthCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  painter->save();
  painter->setClipRect(option.rect);
  PaintGround(*painter, option, index);
  if (index.column() == 0) {
    PaintDay(*painter, option.rect, index);
  } else {
    PaintPlanet(*painter, option.rect, CellAt(index.row(), index.column()));
  }
  if (option.state.testFlag(QStyle::State_Selected)) {
    PaintCurrent(*painter, option);
  }
  painter->restore();
}

}  // namespace orvex::ui
