#include "ui/base/cell_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

#include "core/exact_numbers.h"
#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kPad = space::kS;
constexpr int kGap = space::kXs;
constexpr int kSignWidth = 20;  // two letters

QFont ChipFont() { return Theme::Text(type::kHead, QFont::Bold); }

QFont HouseFont(bool first) {
  return Theme::Text(type::kText, first ? QFont::Bold : QFont::Normal);
}

QRect Centred(const QRect& cell, int left, const QSize& size) {
  return {left, cell.top() + (cell.height() - size.height()) / 2, size.width(), size.height()};
}

QColor InkOf(const QStyleOptionViewItem& option) { return option.palette.color(QPalette::Text); }

}  // namespace

QSize ChipSize() {
  const QFontMetrics metrics(ChipFont());
  return {metrics.horizontalAdvance("MO") + 2 * space::kXs - 1, metrics.height() + 2};
}

void DrawChip(QPainter& painter, const QRect& box, const QString& code, bool chosen) {
  const Tokens& t = Theme::Now();
  const ChipColors colors = ChipOf(t, code);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(chosen ? QPen(t.Accent, line::kFocus) : QPen(Qt::NoPen));
  painter.setBrush(colors.Ground);
  const QRectF frame = chosen ? QRectF(box).adjusted(0, 0, 0, 0) : QRectF(box);
  painter.drawRoundedRect(frame, radius::kChip, radius::kChip);
  painter.setFont(ChipFont());
  painter.setPen(colors.Letters);
  painter.drawText(box, Qt::AlignCenter, code);
  painter.restore();
}

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
  int left = cell.left() + kPad;
  const auto add = [&](const QString& text, const QFont& font, bool bold, bool quiet) {
    const int width = QFontMetrics(font).horizontalAdvance(text);
    placed.push_back({QRect(left, cell.top(), width, cell.height()), text, "", bold, quiet});
    left += width;
  };
  const bool underlined = IsUnderlined(index.column());
  for (CellPiece& piece : PiecesOf(option.text)) {
    if (piece.Code.isEmpty()) {
      add(piece.Word, option.font, false, piece.Word == "None");
      left += kGap;
      continue;
    }
    if (underlined && piece.Houses.isEmpty() && houses_) {
      piece.Houses = houses_(piece.Code);
    }
    placed.push_back(
        {Centred(cell, left, chip), piece.Code, piece.Code, false, false, false, underlined});
    left += chip.width() + kGap;
    if (kind == CellKind::Chip) {
      left += kGap;
      add(piece.Word, option.font, false, false);
    } else if (kind == CellKind::Lord && !piece.Houses.isEmpty()) {
      left += kGap / 2;
      add(piece.Houses.section(' ', 0, 0), HouseFont(true), true, false);
      const QString others = piece.Houses.section(' ', 1);
      if (!others.isEmpty()) {
        add(' ' + others, HouseFont(false), false, true);
      }
      left += kPad;
    }
  }
  if (kind == CellKind::Chip && marks_) {
    for (const QString& mark : marks_(index)) {
      left += kGap;
      const QFontMetrics metrics(ChipFont());
      const QSize size(metrics.horizontalAdvance(mark) + kPad, metrics.height() + 1);
      placed.push_back({Centred(cell, left, size), mark, "", false, false, true});
      left += size.width();
    }
  }
  return placed;
}

QString CellDelegate::CodeAt(const QStyleOptionViewItem& option, const QModelIndex& index,
                             const QPoint& point) const {
  const CellKind kind = KindOf(index.column());
  if (kind != CellKind::Chip && kind != CellKind::Lord && kind != CellKind::Chips) {
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
    if (part.Underlined) {
      painter.fillRect(QRect(part.Box.left(), part.Box.bottom() - 1, part.Box.width(), 2),
                       ChipOf(t, part.Code).Letters);
    }
    return;
  }
  if (part.Mark) {
    const bool hot = part.Text == "R" || part.Text == "now";
    painter.setPen(hot ? t.Now : t.Ink2);
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

void CellDelegate::PaintHeat(QPainter& painter, const QStyleOptionViewItem& option,
                             const QString& text) const {
  const Tokens& t = Theme::Now();
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

void CellDelegate::PaintText(QPainter& painter, const QStyleOptionViewItem& option) const {
  painter.setFont(option.font);
  painter.setPen(InkOf(option));
  const QRect room = option.rect.adjusted(kPad, 0, -kPad / 2, 0);
  painter.drawText(room, static_cast<int>(option.displayAlignment) | Qt::TextSingleLine,
                   QFontMetrics(option.font).elidedText(option.text, Qt::ElideRight, room.width()));
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem own = option;
  initStyleOption(&own, index);
  const CellKind kind = KindOf(index.column());
  const Tokens& t = Theme::Now();
  painter->save();
  if (kind == CellKind::Text && own.text.contains('\n')) {
    own.palette.setColor(QPalette::HighlightedText, InkOf(own));
    QStyledItemDelegate::paint(painter, option, index);
  } else {
    const QWidget* widget = option.widget;
    QStyle& style = widget != nullptr ? *widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &own, painter, widget);
    painter->setClipRect(own.rect);
    const std::optional<DegreeText> degree =
        kind == CellKind::Degree ? DegreeInSign(own.text) : std::nullopt;
    if (degree) {
      const int sign = kSignWidth * Theme::TextSize() / 100;
      const QRect room = own.rect.adjusted(kPad, 0, -kPad, 0);
      painter->setFont(own.font);
      painter->setPen(t.Ink2);
      painter->drawText(QRect(room.right() - sign, room.top(), sign, room.height()),
                        Qt::AlignVCenter | Qt::AlignLeft, degree->Sign);
      painter->setPen(InkOf(own));
      painter->drawText(room.adjusted(0, 0, -sign - kGap, 0), Qt::AlignVCenter | Qt::AlignRight,
                        degree->Figures);
    } else if (kind == CellKind::Heat) {
      PaintHeat(*painter, own, own.text);
    } else if (kind == CellKind::Bold) {
      own.font.setBold(true);
      PaintText(*painter, own);
    } else if (kind == CellKind::Letter) {
      own.text = own.text.left(1);
      PaintText(*painter, own);
    } else if (kind == CellKind::Age) {
      own.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
      own.palette.setColor(QPalette::Text, t.Ink2);
      PaintText(*painter, own);
    } else if (kind == CellKind::Text || kind == CellKind::Degree || kind == CellKind::Ingress) {
      PaintText(*painter, own);
    } else {
      for (const Placed& part : LayOut(own, index)) {
        PaintPlaced(*painter, own, part);
      }
    }
  }
  painter->setClipping(false);
  painter->fillRect(QRect(own.rect.left(), own.rect.bottom(), own.rect.width(), line::kHair),
                    t.Rule);
  painter->restore();
}

int CellDelegate::PlacedWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem own = option;
  own.rect = QRect(0, 0, 0, 1);
  initStyleOption(&own, index);
  const std::vector<Placed> placed = LayOut(own, index);
  return placed.empty() ? 0 : placed.back().Box.right() + 1 + kGap;
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const CellKind kind = KindOf(index.column());
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  if (kind == CellKind::Chip || kind == CellKind::Lord || kind == CellKind::Chips) {
    QStyleOptionViewItem own = option;
    own.rect = QRect(0, 0, 0, size.height());
    initStyleOption(&own, index);
    const std::vector<Placed> placed = LayOut(own, index);
    size.setWidth(placed.empty() ? 2 * kPad : placed.back().Box.right() + kPad);
  } else {
    size.rwidth() += kPad;
  }
  return size;
}

}  // namespace orvex::ui
