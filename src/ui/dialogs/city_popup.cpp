#include "ui/dialogs/city_popup.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "core/exact_numbers.h"
#include "practice/zone_clock.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

enum Role {
  IdRole = Qt::UserRole,
  NameRole,
  NoteRole,
  PlaceRole,
  ClocksRole,
  DiffersRole,
  BoldRole
};

// Name (bold as far as typed), a note, and at the right the place and the clocks.
class CityDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, option.fontMetrics.height() + kMargin - kGrid / 2};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    const bool marked = row.state.testFlag(QStyle::State_Selected);
    ink_ = row.palette.color(marked ? QPalette::HighlightedText : QPalette::Text);
    faint_ = marked ? ink_ : Theme::Muted();
    painter->save();
    QRect room = row.rect.adjusted(kGrid, 0, -kGrid, 0);
    PaintClocks(*painter, row.font, index, room);
    PaintAtRight(*painter, row.font, faint_, index.data(PlaceRole).toString(), room);
    PaintName(*painter, row.font, index, room);
    painter->restore();
  }

 private:
  static void PaintAtRight(QPainter& painter, const QFont& font, const QColor& color,
                           const QString& text, QRect& room) {
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, text);
    room.setRight(room.right() - painter.fontMetrics().horizontalAdvance(text) - 2 * kGrid);
  }

  // An offset then that is not the city's own stands out.
  void PaintClocks(QPainter& painter, const QFont& font, const QModelIndex& index,
                   QRect& room) const {
    const QString clocks = index.data(ClocksRole).toString();
    if (!index.data(DiffersRole).toBool()) {
      PaintAtRight(painter, font, faint_, clocks, room);
      return;
    }
    QFont bold = font;
    bold.setBold(true);
    const QString then = clocks.section(' ', 0, 0);
    const QRect all = room;
    PaintAtRight(painter, font, faint_, clocks.mid(then.size()), room);
    room.setRight(room.right() + 2 * kGrid);  // one text with what stands before it
    PaintAtRight(painter, bold, Theme::Now().Amber, then, room);
    room.setRight(std::min(room.right(), all.right()));
  }

  void PaintName(QPainter& painter, const QFont& font, const QModelIndex& index, QRect room) const {
    const QString name = index.data(NameRole).toString();
    const qsizetype bold = index.data(BoldRole).toInt();
    QFont typed = font;
    typed.setBold(true);
    const auto paint = [&](const QFont& with, const QColor& color, const QString& text) {
      painter.setFont(with);
      painter.setPen(color);
      const QString fits = painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width());
      painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, fits);
      room.setLeft(room.left() + painter.fontMetrics().horizontalAdvance(fits));
    };
    paint(typed, ink_, name.left(bold));
    paint(font, ink_, name.mid(bold));
    room.setLeft(room.left() + kMargin);
    paint(font, faint_, index.data(NoteRole).toString());
  }

  mutable QColor ink_;
  mutable QColor faint_;
};

// What the clocks of a city showed, with the city's own offset where that is another.
struct ClockWords {
  QString Text;
  bool Differs = false;
};

ClockWords ClocksOf(const practice::FoundCity& city, core::DateTime local) {
  const double standard = core::ToDouble(city.Offset);
  const QString own = Shown(practice::ClockOffsetText(standard));
  try {
    const practice::ZoneClock clock =
        practice::ClocksOf(city.Zone, local, core::ToDouble(city.Longitude));
    const QString then = Shown(practice::ClockOffsetText(clock.OffsetInForce));
    return then == own ? ClockWords{own, false}
                       : ClockWords{CityPopup::tr("%1 then, city %2").arg(then, own), true};
  } catch (const practice::ZoneError&) {
    return {own, false};
  }
}

QString NoteOf(const practice::FoundCity& city) {
  QStringList notes;
  if (!city.OtherName.empty()) {
    notes << Shown(city.OtherName);
  }
  if (city.Clients > 0) {
    notes << (city.Clients == 1 ? CityPopup::tr("used by 1 client")
                                : CityPopup::tr("used by %1 clients").arg(city.Clients));
  }
  return notes.join(", ");
}

}  // namespace

CityPopup::CityPopup(QWidget* window)
    : QFrame(window), list_(Named(new QListWidget, "cityChoices")), count_(new QLabel) {
  setObjectName("cityPopup");
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  list_->setAccessibleName(tr("Cities"));
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setItemDelegate(new CityDelegate(list_));
  auto* all = new LinkButton("allCities");
  all->setText(tr("All cities…"));
  auto* add = new LinkButton("addCity");
  add->setText(tr("Add a city"));
  for (LinkButton* link : {all, add}) {
    link->setFocusPolicy(Qt::NoFocus);
  }
  auto* foot = new QHBoxLayout;
  foot->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
  foot->addWidget(count_, 1);
  foot->addWidget(all);
  foot->addWidget(add);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(0);
  layout->addWidget(list_, 1);
  layout->addLayout(foot);
  connect(list_, &QListWidget::itemClicked, this, [this] { emit Clicked(); });
  connect(all, &QPushButton::clicked, this, &CityPopup::AllWanted);
  connect(add, &QPushButton::clicked, this, &CityPopup::AddWanted);
  hide();
}

void CityPopup::ShowCities(const practice::CitySearch::Result& found, const QString& typed,
                           core::DateTime local) {
  list_->clear();
  for (const practice::FoundCity& city : found.Best) {
    auto* item = new QListWidgetItem(list_);
    const QString name = Shown(practice::CityText(city));
    const QString note = NoteOf(city);
    const QString place = Shown(practice::CoordinatesText(city));
    const ClockWords clocks = ClocksOf(city, local);
    item->setData(IdRole, city.Id);
    item->setData(NameRole, name);
    item->setData(NoteRole, note);
    item->setData(PlaceRole, place);
    item->setData(ClocksRole, clocks.Text);
    item->setData(DiffersRole, clocks.Differs);
    item->setData(BoldRole, name.startsWith(typed.trimmed(), Qt::CaseInsensitive)
                                ? static_cast<int>(typed.trimmed().size())
                                : 0);
    item->setText(QStringList{name, note, place, clocks.Text}.join(' '));
  }
  list_->setCurrentRow(0);
  const auto more = static_cast<int>(found.Count - found.Best.size());
  count_->setText(found.Count == 0 ? tr("No city of that name. Enter adds one.")
                  : more > 0       ? tr("%1 more").arg(more)
                                   : "");
}

void CityPopup::DropBelow(const QWidget& field) {
  constexpr int kRows = 6;
  const int row = list_->fontMetrics().height() + kMargin - kGrid / 2;
  const int rows = std::clamp(list_->count(), 0, kRows);
  const int wanted = rows * row + count_->sizeHint().height() + 2 * kGrid;
  const QPoint below = field.mapTo(parentWidget(), QPoint(0, field.height()));
  const int roomBelow = parentWidget()->height() - below.y();
  const int roomAbove = below.y() - field.height();
  const bool goesAbove = roomBelow < wanted && roomAbove > roomBelow;
  const int height = std::min(wanted, goesAbove ? roomAbove : roomBelow);
  setGeometry(below.x(), goesAbove ? roomAbove - height : below.y(), field.width(), height);
  raise();
  show();
}

std::int32_t CityPopup::Marked() const {
  const QListWidgetItem* item = list_->currentItem();
  return item == nullptr ? 0 : item->data(IdRole).toInt();
}

void CityPopup::MoveMark(int rows) {
  list_->setCurrentRow(std::clamp(list_->currentRow() + rows, 0, std::max(0, list_->count() - 1)));
}

}  // namespace orvex::ui
