#include "ui/main/client_cells.h"

#include <QApplication>
#include <QPainter>

#include "core/date_text.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kPad = space::kS;

void PaintGround(QPainter& painter, const QStyleOptionViewItem& option) {
  const QWidget* widget = option.widget;
  QStyle& style = widget != nullptr ? *widget->style() : *QApplication::style();
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, widget);
}

void PaintRule(QPainter& painter, const QRect& cell) {
  painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width(), line::kHair), Theme::Now().Rule);
}

bool IsChosen(const QStyleOptionViewItem& option) {
  return option.state.testFlag(QStyle::State_Selected);
}

// The words in a room, cut where they do not fit; gives their width.
int PaintWords(QPainter& painter, const QRect& room, const QString& words, int align) {
  const QString fits =
      painter.fontMetrics().elidedText(words, Qt::ElideRight, std::max(0, room.width()));
  painter.drawText(room, align | Qt::AlignVCenter | Qt::TextSingleLine, fits);
  return painter.fontMetrics().horizontalAdvance(fits);
}

}  // namespace

void ClientNameDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  const Tokens& t = Theme::Now();
  QStyleOptionViewItem own = option;
  initStyleOption(&own, index);
  painter->save();
  PaintGround(*painter, own);
  QRect room = own.rect.adjusted(kPad, 0, -kPad / 2, 0);
  const QString number =
      index.siblingAtColumn(static_cast<int>(practice::ClientColumn::HoraryNumber))
          .data()
          .toString();
  const QFont small = Theme::Text(type::kHead, QFont::DemiBold);
  const int wide =
      number.isEmpty() ? 0 : QFontMetrics(small).horizontalAdvance("#" + number) + kPad;
  QFont font = own.font;
  font.setWeight(IsChosen(own) ? QFont::DemiBold : QFont::Normal);
  painter->setFont(font);
  painter->setPen(t.Ink);
  const int name = PaintWords(*painter, room.adjusted(0, 0, -wide - (wide > 0 ? kPad : 0), 0),
                              own.text, Qt::AlignLeft);
  if (!number.isEmpty()) {
    const int high = QFontMetrics(small).height() + 2;
    const QRect box(room.left() + name + kPad, own.rect.center().y() - high / 2, wide, high);
    painter->setFont(small);
    painter->setPen(t.Ink2);
    painter->drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), radius::kChip,
                             radius::kChip);
    painter->drawText(box, Qt::AlignCenter, "#" + number);
  }
  PaintRule(*painter, own.rect);
  painter->restore();
}

bool ClientNameDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
  const QModelIndex number =
      index.siblingAtColumn(static_cast<int>(practice::ClientColumn::HoraryNumber));
  return QStyledItemDelegate::helpEvent(event, view, option, number);
}

void ShortDateDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyleOptionViewItem own = option;
  initStyleOption(&own, index);
  painter->save();
  PaintGround(*painter, own);
  if (const std::optional<core::DateTime> date = core::ParseLongDateText(Typed(own.text))) {
    own.text = Shown(core::LongDateText(*date, true));
  }
  painter->setFont(own.font);
  painter->setPen(Theme::Now().Ink);
  PaintWords(*painter, own.rect.adjusted(kPad, 0, -kPad / 2, 0), own.text, Qt::AlignLeft);
  PaintRule(*painter, own.rect);
  painter->restore();
}

void GroupDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const Tokens& t = Theme::Now();
  QStyleOptionViewItem own = option;
  initStyleOption(&own, index);
  const bool counts = index.column() == static_cast<int>(practice::GroupCountColumn::Clients);
  painter->save();
  PaintGround(*painter, own);
  QFont font = own.font;
  font.setWeight(IsChosen(own) ? QFont::DemiBold : QFont::Normal);
  painter->setFont(font);
  painter->setPen(counts && !IsChosen(own) ? t.Ink2 : t.Ink);
  const QRect room = own.rect.adjusted(counts ? 0 : space::kM, 0, counts ? -space::kM : 0, 0);
  PaintWords(*painter, room, own.text, counts ? Qt::AlignRight : Qt::AlignLeft);
  // The groups begin below the two rows that are none.
  if (index.row() == 1) {
    PaintRule(*painter, own.rect);
  }
  painter->restore();
}

}  // namespace orvex::ui
