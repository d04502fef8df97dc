#include "ui/transit/planet_header.h"

#include <QPainter>
#include <QStyleOptionHeader>

#include "ui/base/cell_text.h"
#include "ui/base/planet_chip.h"
#include "ui/base/theme.h"

namespace orvex::ui {

PlanetHeader::PlanetHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setHighlightSections(false);
  setSectionsClickable(false);
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void PlanetHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  const QString name = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
  const QString code = CodeOfWord(name);
  if (code.isEmpty()) {
    QHeaderView::paintSection(painter, rect, section);
    return;
  }
  QStyleOptionHeader option;
  initStyleOption(&option);
  option.rect = rect;
  style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
  const QFont font = Theme::Text(type::kHead);
  const QSize chip = ChipSize();
  const QRect room = rect.adjusted(0, line::kHead, -space::kXs, 0);
  const int word = std::min(QFontMetrics(font).horizontalAdvance(name),
                            room.width() - chip.width() - space::kXs);
  // At the right, above the degrees.
  const QRect box(room.right() - word - space::kXs - chip.width(),
                  room.top() + (room.height() - chip.height()) / 2, chip.width(), chip.height());
  DrawChip(*painter, box, code, false);
  painter->setFont(font);
  painter->setPen(Theme::Now().Ink2);
  const QRect wordBox(room.right() - word, room.top(), word + 1, room.height());
  painter->drawText(wordBox, Qt::AlignVCenter | Qt::AlignLeft,
                    QFontMetrics(font).elidedText(name, Qt::ElideRight, word + 1));
}

}  // namespace orvex::ui
