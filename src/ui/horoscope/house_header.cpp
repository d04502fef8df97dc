#include "ui/horoscope/house_header.h"

#include <QPainter>
#include <QStyleOptionHeader>

#include "ui/base/theme.h"

namespace orvex::ui {

HouseHeader::HouseHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setHighlightSections(false);
  setSectionsClickable(false);
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void HouseHeader::SetHouseRoles(HouseRoles roles) {
  roles_ = std::move(roles);
  viewport()->update();
}

void HouseHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  const QString caption = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
  bool isFigure = false;
  const int house = caption.toInt(&isFigure);
  const HouseRole role = isFigure && roles_ ? roles_(house) : HouseRole::None;
  if (role == HouseRole::None) {
    QHeaderView::paintSection(painter, rect, section);
    return;
  }
  QStyleOptionHeader option;
  initStyleOption(&option);
  option.rect = rect;
  style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
  DrawHouseMark(*painter, rect.adjusted(0, line::kHead, 0, 0), caption, role);
}

}  // namespace orvex::ui
