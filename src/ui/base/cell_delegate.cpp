#include "ui/base/cell_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_model.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kMoreWidth = 20;  // "+2"

QFont HouseFont(bool first) {
  return Theme::Text(type::kText, first ? QFont::Bold : QFont::Normal);
}

// A triangle that points at the name before it.
void DrawNowArrow(QPainter& painter, const QRect& box) {
  const QRectF room = QRectF(box).adjusted(1, 0, -1, 0);
  const double half = room.width() / 2;
  const QPointF tip(room.left(), room.center().y());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(painter.pen().color());
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(
      QPolygonF({tip, {room.right(), tip.y() - half}, {room.right(), tip.y() + half}}));
}

QRect Centred(const QRect& cell, int left, const QSize& size) {
  return {left, cell.top() + (cell.height() - size.height()) / 2, size.width(), size.height()};
}

bool HasChips(CellKind kind) {
  return kind == CellKind::Chip || kind == CellKind::Lord || kind == CellKind::Nadi ||
         kind == CellKind::Chips || kind == CellKind::Code || kind == CellKind::Agents;
}

// "RA KE" of "RA for SU MO, KE for VE".
QString NodesOf(const QString& agents) {
  QStringList nodes;
  for (const QString& node : agents.split(',')) {
    nodes << node.trimmed().section(' ', 0, 0);
  }
  return nodes.join(' ').trimmed();
}

}  // namespace

CellKind CellDelegate::KindOf(int column) const {
  const auto place = static_cast<std::size_t>(column);
  return place < kinds_.size() ? kinds_[place] : CellKind::Text;
}

bool CellDelegate::IsUnderlined(int column) const {
  const auto place = static_cast<std::size_t>(column);
  return place < underlined_.size() && underlined_[place];
}

std::vector<CellDelegate::Placed> CellDelegate::LayOut(const QStyleOptionViewItem& option,
                                                       const QModelIndex& index) const {
  std::vector<Placed> placed;
  const CellKind kind = KindOf(index.column());
  const QSize chip = ChipSize();
  const QRect& cell = option.rect;
  int left = cell.left() + kCellPad;
  const auto add = [&](const QString& text, const QFont& font, bool bold, bool quiet) {
    const int width = QFontMetrics(font).horizontalAdvance(text);
    placed.push_back({QRect(left, cell.top(), width, cell.height()), text, "", bold, quiet});
    left += width;
  };
  const bool underlined = IsUnderlined(index.column());
  for (CellPiece& piece : PiecesOf(kind == CellKind::Agents ? NodesOf(option.text) : option.text)) {
    if (piece.Code.isEmpty()) {
      add(piece.Word, option.font, false, piece.Word == "None");
      left += kCellGap;
      continue;
    }
    if (underlined && piece.Houses.isEmpty() && houses_) {
      piece.Houses = houses_(piece.Code);
    }
    placed.push_back(
        {Centred(cell, left, chip), piece.Code, piece.Code, false, false, false, underlined});
    left += chip.width() + kCellGap;
    if (kind == CellKind::Chip) {
      left += kCellGap;
      add(piece.Word, option.font, false, false);
    } else if (kind == CellKind::Lord && !piece.Houses.isEmpty()) {
      left += kCellGap / 2;
      add(piece.Houses.section(' ', 0, 0), HouseFont(true), true, false);
      const QString others = piece.Houses.section(' ', 1);
      if (!others.isEmpty()) {
        add(' ' + others, HouseFont(false), false, true);
      }
      left += kCellPad;
    } else if (kind == CellKind::Nadi && !piece.Houses.isEmpty()) {
      left += kCellGap / 2;
      add(piece.Houses, HouseFont(false), false, false);
      left += kCellPad;
    }
  }
  if (kind == CellKind::Chips) {
    FitChips(placed, option);
  }
  if ((kind == CellKind::Chip || kind == CellKind::Code) && marks_) {
    for (const QString& mark : marks_(index)) {
      left += kCellGap;
      const QFontMetrics metrics(ChipFont());
      const int wide = mark == kNowArrow ? 0 : metrics.horizontalAdvance(mark);
      const QSize size(wide + kCellPad, metrics.height() + 1);
      placed.push_back({Centred(cell, left, size), mark, "", false, false, true});
      left += size.width();
    }
  }
  return placed;
}

// Of chips that find no room the last ones give way to their number.
void CellDelegate::FitChips(std::vector<Placed>& placed, const QStyleOptionViewItem& option) {
  const int room = option.rect.width();
  int hidden = 0;
  const auto right = [&] { return placed.back().Box.right() + (hidden > 0 ? kMoreWidth : 0); };
  while (room > 0 && placed.size() > 1 && right() > option.rect.right()) {
    placed.pop_back();
    ++hidden;
  }
  if (hidden > 0) {
    const QRect box(placed.back().Box.right() + kCellGap, option.rect.top(), kMoreWidth,
                    option.rect.height());
    placed.push_back({box, '+' + WholeText(hidden), "", false, true});
  }
}

QString CellDelegate::CodeAt(const QStyleOptionViewItem& option, const QModelIndex& index,
                             const QPoint& point) const {
  if (!HasChips(KindOf(index.column()))) {
    return {};
  }
  QStyleOptionViewItem own = option;
  initStyleOption(&own, index);
  for (const Placed& part : LayOut(own, index)) {
    if (!part.Code.isEmpty() && part.Box.contains(point)) {
      return part.Code;
    }
  }
  return {};
}

void CellDelegate::PaintPlaced(QPainter& painter, const QStyleOptionViewItem& option,
                               const Placed& part) const {
  const Tokens& t = Theme::Now();
  if (!part.Code.isEmpty()) {
    DrawChip(painter, part.Box, part.Code, part.Code == chosen_);
    if (fruitful_.contains(part.Code) && part.Code != chosen_) {
      DrawFruitfulRing(painter, part.Box);
    }
    if (part.Underlined) {
      painter.fillRect(QRect(part.Box.left(), part.Box.bottom() - 1, part.Box.width(), 2),
                       ChipOf(t, part.Code).Letters);
    }
    return;
  }
  if (part.Mark) {
    const bool hot = part.Text == "R" || part.Text == "now" || part.Text == kNowArrow;
    painter.setPen(hot ? t.Now : t.Ink2);
    if (part.Text == kNowArrow) {
      DrawNowArrow(painter, part.Box);
      return;
    }
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(part.Box).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.setFont(ChipFont());
    painter.drawText(part.Box, Qt::AlignCenter, part.Text);
    return;
  }
  painter.setFont(part.Bold ? HouseFont(true) : option.font);
  painter.setPen(part.Quiet ? t.Ink2 : InkOf(option));
  painter.drawText(part.Box, Qt::AlignVCenter | Qt::AlignLeft, part.Text);
}

// A retrograde planet's name is red, beside the letter that says so.
QColor CellDelegate::InkOfName(const QModelIndex& index) const {
  return KindOf(index.column()) == CellKind::Chip && marks_ && marks_(index).contains("R")
             ? Theme::Now().Now
             : QColor();
}

void CellDelegate::PaintContents(QPainter& painter, QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  const Tokens& t = Theme::Now();
  const CellKind kind = KindOf(index.column());
  const bool marked = HasChips(kind) || kind == CellKind::Houses || kind == CellKind::Tick ||
                      kind == CellKind::Bold || kind == CellKind::Words;
  if (marked && option.text.isEmpty()) {
    option.text = "–";
    option.palette.setColor(QPalette::Text, t.Ink2);
    if (kind == CellKind::Tick) {
      option.displayAlignment = Qt::AlignCenter;
    }
    PaintCellText(painter, option);
    return;
  }
  switch (kind) {
    case CellKind::Text:
    case CellKind::Words:
    case CellKind::Ingress:
      PaintCellText(painter, option);
      break;
    case CellKind::Degree:
      PaintDegreeCell(painter, option);
      break;
    case CellKind::Heat:
      PaintHeatCell(painter, option);
      break;
    case CellKind::Bold:
      option.font.setBold(true);
      PaintCellText(painter, option);
      break;
    case CellKind::Letter:
      option.text = option.text.left(1);
      PaintCellText(painter, option);
      break;
    case CellKind::Figures:
      option.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
      PaintCellText(painter, option);
      break;
    case CellKind::Age:
      option.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
      option.palette.setColor(QPalette::Text, t.Ink2);
      PaintCellText(painter, option);
      break;
    case CellKind::Houses:
      PaintHousesCell(painter, option, roles_);
      break;
    case CellKind::Lords:
      DrawLordMarks(painter, option.rect, option.text);
      break;
    case CellKind::Tick:
      DrawTick(painter, option.rect, option.text == "Yes");
      break;
    default:
      if (const QColor ink = InkOfName(index); ink.isValid()) {
        option.palette.setColor(QPalette::Text, ink);
      }
      for (const Placed& part : LayOut(option, index)) {
        PaintPlaced(painter, option, part);
      }
  }
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem own = option;
  initStyleOption(&own, index);
  painter->save();
  const QWidget* widget = option.widget;
  QStyle& style = widget != nullptr ? *widget->style() : *QApplication::style();
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &own, painter, widget);
  painter->setClipRect(own.rect);
  PaintContents(*painter, own, index);
  painter->setClipping(false);
  const bool ruled = index.row() == ruledRow_;
  const int rule = ruled ? line::kHead : line::kHair;
  painter->fillRect(QRect(own.rect.left(), own.rect.bottom() + 1 - rule, own.rect.width(), rule),
                    ruled ? Theme::Now().Rule2 : Theme::Now().Rule);
  painter->restore();
}

int CellDelegate::PlacedWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem own = option;
  own.rect = QRect(0, 0, 0, 1);
  initStyleOption(&own, index);
  if (KindOf(index.column()) == CellKind::Houses) {
    return WidthOfHouses(own.text, roles_);
  }
  const std::vector<Placed> placed = LayOut(own, index);
  return placed.empty() ? 0 : placed.back().Box.right() + 1 + kCellGap;
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const CellKind kind = KindOf(index.column());
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  if (kind == CellKind::Houses) {
    size.setWidth(WidthOfHouses(index.data().toString(), roles_));
  } else if (HasChips(kind)) {
    QStyleOptionViewItem own = option;
    own.rect = QRect(0, 0, 0, size.height());
    initStyleOption(&own, index);
    const std::vector<Placed> placed = LayOut(own, index);
    size.setWidth(placed.empty() ? 2 * kCellPad : placed.back().Box.right() + kCellPad);
  } else {
    size.rwidth() += kCellPad;
  }
  return size;
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
  const bool told = !index.data(Qt::ToolTipRole).toString().isEmpty();
  if (event->type() == QEvent::ToolTip && !told && KindOf(index.column()) == CellKind::Degree &&
      ShownDegree(index.data().toString())) {
    QToolTip::showText(event->globalPos(), PlainTip(index.data().toString()), view);
    return true;
  }
  return QStyledItemDelegate::helpEvent(event, view, option, index);
}

}  // namespace orvex::ui
