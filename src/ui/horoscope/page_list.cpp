#include "ui/horoscope/page_list.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include "ui/base/room_plan.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kPlaceOfPage = Qt::UserRole;
constexpr int kCountOfPage = Qt::UserRole + 1;
constexpr int kTitleMargin = space::kM + 2;

bool IsCaption(const QModelIndex& index) { return !index.data(kPlaceOfPage).isValid(); }

QFont CaptionFont() { return Theme::Text(type::kHead, QFont::DemiBold); }
QFont TitleFont(bool chosen) {
  return Theme::Text(type::kText, chosen ? QFont::DemiBold : QFont::Normal);
}

// A caption is quiet; the page in sight stands on the ground of its sheet behind a bar.
class PageDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void SetRow(int height) { row_ = height; }

  QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                 const QModelIndex& /*index*/) const override {
    return {0, row_};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Tokens& t = Theme::Now();
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    if (chosen) {
      const bool keys = option.widget != nullptr && option.widget->hasFocus();
      painter->fillRect(option.rect, keys ? t.Sel : t.Sheet);
      QRect bar = option.rect;
      bar.setWidth(line::kChosen);
      painter->fillRect(bar, t.Accent);
    }
    const QRect room = option.rect.adjusted(kTitleMargin, 0, -space::kM, 0);
    painter->setFont(IsCaption(index) ? CaptionFont() : TitleFont(chosen));
    painter->setPen(IsCaption(index) ? t.Ink2 : t.Ink);
    const int across = IsCaption(index) ? Qt::AlignBottom : Qt::AlignVCenter;
    painter->drawText(room.adjusted(0, 0, 0, IsCaption(index) ? -space::kXs / 2 : 0),
                      Qt::AlignLeft | across, index.data().toString());
    painter->setFont(TitleFont(false));
    painter->setPen(t.Ink2);
    painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, index.data(kCountOfPage).toString());
    painter->restore();
  }

 private:
  int row_ = height::kListRow;
};

}  // namespace

PageList::PageList() {
  setItemDelegate(new PageDelegate(this));
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  viewport()->setBackgroundRole(QPalette::AlternateBase);
}

void PageList::AddCaption(const QString& caption) {
  auto* item = new QListWidgetItem(caption, this);
  item->setFlags(Qt::NoItemFlags);
}

void PageList::AddPage(const QString& title, std::size_t place) {
  auto* item = new QListWidgetItem(title, this);
  item->setData(kPlaceOfPage, static_cast<int>(place));
}

std::optional<std::size_t> PageList::PlaceOf(int row) const {
  const QListWidgetItem* found = item(row);
  const QVariant place = found == nullptr ? QVariant() : found->data(kPlaceOfPage);
  return place.isValid() ? std::optional(static_cast<std::size_t>(place.toInt())) : std::nullopt;
}

void PageList::SetCount(std::size_t place, const QString& shown) {
  for (int row = 0; row < count(); ++row) {
    if (PlaceOf(row) == place) {
      item(row)->setData(kCountOfPage, shown);
      item(row)->setData(Qt::AccessibleTextRole,
                         shown.isEmpty() ? QVariant() : item(row)->text() + ", " + shown);
    }
  }
}

int PageList::WidthOfTitles() const {
  const QFontMetrics metrics(TitleFont(true));
  int widest = 0;
  for (int row = 0; row < count(); ++row) {
    widest = std::max(widest, metrics.horizontalAdvance(item(row)->text()));
  }
  return kTitleMargin + widest + space::kXl + space::kM;
}

void PageList::resizeEvent(QResizeEvent* event) {
  const int least = QFontMetrics(TitleFont(true)).height() + 1;
  const int most = std::max(least, Scaled(height::kListRow));
  static_cast<PageDelegate*>(itemDelegate())
      ->SetRow(FitRows(count(), viewport()->height(), least, most));
  scheduleDelayedItemsLayout();
  QListWidget::resizeEvent(event);
}

}  // namespace orvex::ui
