#include "ui/main/find_anyone_popup.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/base/elided_label.h"
#include "ui/base/icon.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kWidth = 640;
constexpr int kLeastWidth = 420;
constexpr int kMostHeight = 460;

enum Role {
  IdRole = Qt::UserRole,
  BeforeRole,
  MarkedRole,
  BehindRole,
  GroupRole,
  DateRole,
  CityRole
};

// Name with what was typed underlined, group, date and city; captions small and bold.
class AnyoneDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const override {
    const bool caption = !index.flags().testFlag(Qt::ItemIsSelectable);
    return {0, Scaled(caption ? height::kListRow : height::kClientRow)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Tokens& t = Theme::Now();
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    painter->save();
    if (!index.flags().testFlag(Qt::ItemIsSelectable)) {
      painter->setFont(Theme::Text(type::kHead, QFont::DemiBold));
      painter->setPen(t.Ink2);
      painter->drawText(row.rect.adjusted(space::kM + 2, 0, -space::kS, 0), Qt::AlignVCenter,
                        row.text);
      painter->restore();
      return;
    }
    row.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
    PaintRow(*painter, row, index);
    painter->restore();
  }

 private:
  // The four columns keep their places whatever is found.
  static void PaintRow(QPainter& painter, const QStyleOptionViewItem& row,
                       const QModelIndex& index) {
    const Tokens& t = Theme::Now();
    const QRect room = row.rect.adjusted(space::kM + 2, 0, -space::kS, 0);
    const auto part = [&room](double from, double to) {
      return QRect(room.left() + static_cast<int>(room.width() * from), room.top(),
                   static_cast<int>(room.width() * (to - from)) - space::kS, room.height());
    };
    PaintName(painter, row.font, index, part(0, 0.33));
    const auto text = [&](Role role, const QRect& box, int align, const QColor& ink) {
      painter.setFont(row.font);
      painter.setPen(ink);
      const QString words = index.data(role).toString();
      painter.drawText(box, align | Qt::AlignVCenter,
                       painter.fontMetrics().elidedText(words, Qt::ElideRight, box.width()));
    };
    text(GroupRole, part(0.33, 0.48), Qt::AlignLeft, t.Ink2);
    text(DateRole, part(0.48, 0.64), Qt::AlignRight, t.Ink);
    text(CityRole, part(0.64, 1), Qt::AlignLeft, t.Ink2);
  }

  static void PaintName(QPainter& painter, const QFont& font, const QModelIndex& index, QRect box) {
    painter.setPen(Theme::Now().Ink);
    QFont typed = font;
    typed.setBold(true);
    typed.setUnderline(true);
    for (const auto& [role, with] :
         {std::pair{BeforeRole, font}, {MarkedRole, typed}, {BehindRole, font}}) {
      painter.setFont(with);
      const QString words = painter.fontMetrics().elidedText(index.data(role).toString(),
                                                             Qt::ElideRight, box.width());
      painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, words);
      box.setLeft(box.left() + painter.fontMetrics().horizontalAdvance(words));
    }
  }
};

}  // namespace

FindAnyonePopup::FindAnyonePopup(QWidget* window)
    : QFrame(window),
      list_(Named(new QListWidget, "anyoneFound")),
      birth_(MakeNew("newBirthNamed", "new-birth", Mark::NewBirth)),
      query_(MakeNew("newQueryNamed", "new-query", Mark::NewQuery)),
      hint_(new ElidedLabel("anyoneHint")) {
  setObjectName("anyonePopup");
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  list_->setAccessibleName(tr("Found"));
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setItemDelegate(new AnyoneDelegate(list_));
  hint_->setFont(Theme::Text(type::kSmall));
  hint_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* foot = new QHBoxLayout;
  foot->setContentsMargins(space::kXs, space::kXs, space::kM, space::kXs);
  foot->addWidget(birth_);
  foot->addWidget(query_);
  foot->addWidget(hint_, 1);
  auto* rule = new QFrame;
  rule->setFrameShape(QFrame::HLine);
  rule->setFrameShadow(QFrame::Plain);
  rule->setForegroundRole(QPalette::PlaceholderText);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, space::kXs, 1, 1);
  layout->setSpacing(0);
  layout->addWidget(list_, 1);
  layout->addWidget(rule);
  layout->addLayout(foot);
  connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    Take(Mark::Client, list_->row(item));
    emit Clicked();
  });
  hide();
}

QPushButton* FindAnyonePopup::MakeNew(const char* name, const char* icon, Mark mark) {
  QPushButton* button = MakeButton(name, {});
  button->setFlat(true);
  button->setCheckable(true);
  button->setIcon(Icon(icon));
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QPushButton::clicked, this, [this, mark] {
    Take(mark, -1);
    emit Clicked();
  });
  return button;
}

void FindAnyonePopup::AddCaption(practice::FoundIn where) {
  auto* caption = new QListWidgetItem(practice::CaptionOf(where), list_);
  caption->setFlags(Qt::ItemIsEnabled);
}

void FindAnyonePopup::AddClient(const practice::FoundAnyone& client) {
  auto* item = new QListWidgetItem(list_);
  const std::string& name = client.Name;
  item->setData(IdRole, client.Id);
  item->setData(BeforeRole, Shown(name.substr(0, client.MarkBegin)));
  item->setData(MarkedRole, Shown(name.substr(client.MarkBegin, client.MarkLength)));
  item->setData(BehindRole, Shown(name.substr(client.MarkBegin + client.MarkLength)));
  item->setData(GroupRole, Shown(client.Group));
  item->setData(DateRole, Shown(client.Date));
  item->setData(CityRole, Shown(client.City));
  const QString all =
      QStringList{Shown(name), Shown(client.Group), Shown(client.Date), Shown(client.City)}.join(
          ", ");
  item->setData(Qt::AccessibleTextRole, all);
  item->setText(Shown(name));
}

void FindAnyonePopup::ShowFound(const practice::FindAnyone::Result& found, const QString& typed) {
  list_->clear();
  std::optional<practice::FoundIn> last;
  for (const practice::FoundAnyone& client : found.Best) {
    if (last != client.Where) {
      AddCaption(client.Where);
      last = client.Where;
    }
    AddClient(client);
  }
  if (found.Best.empty()) {
    new QListWidgetItem(tr("Nobody of that name."), list_);
    list_->item(0)->setFlags(Qt::ItemIsEnabled);
  }
  const QString name = typed.trimmed().replace('&', "&&");
  const QString shown = fontMetrics().elidedText(name, Qt::ElideRight, Scaled(kWidth) / 6);
  birth_->setText(tr("New birth %1").arg(shown));
  query_->setText(tr("New query %1").arg(shown));
  birth_->setAccessibleName(tr("New birth %1").arg(typed.trimmed()));
  query_->setAccessibleName(tr("New query %1").arg(typed.trimmed()));
  const auto more = static_cast<int>(found.Count - found.Best.size());
  hint_->setText(more > 0 ? tr("%1 more: type on").arg(more)
                          : tr("Enter opens   Ctrl+Enter edits   F2 shows in its group"));
  Take(found.Best.empty() ? Mark::NewBirth : Mark::Client, found.Best.empty() ? -1 : 1);
}

void FindAnyonePopup::DropBelow(const QWidget& field) {
  int rows = 0;
  for (int row = 0; row < list_->count(); ++row) {
    rows += list_->sizeHintForRow(row);
  }
  const QPoint below = field.mapTo(parentWidget(), QPoint(0, field.height() + 2));
  const int foot = birth_->sizeHint().height() + 2 * space::kXs + 2;
  const int room = parentWidget()->height() - below.y() - space::kS;
  const int width =
      std::clamp(Scaled(kWidth), kLeastWidth,
                 std::max(kLeastWidth, parentWidget()->width() - below.x() - space::kS));
  setGeometry(below.x(), below.y(), width,
              std::min({rows + foot + 3 * space::kXs, Scaled(kMostHeight), room}));
  raise();
  show();
}

std::vector<int> FindAnyonePopup::ClientRows() const {
  std::vector<int> rows;
  for (int row = 0; row < list_->count(); ++row) {
    if (list_->item(row)->flags().testFlag(Qt::ItemIsSelectable)) {
      rows.push_back(row);
    }
  }
  return rows;
}

std::int32_t FindAnyonePopup::MarkedClient() const {
  const QListWidgetItem* item = list_->currentItem();
  return mark_ != Mark::Client || item == nullptr ? 0 : item->data(IdRole).toInt();
}

void FindAnyonePopup::MoveMark(int by) {
  const std::vector<int> rows = ClientRows();
  const auto clients = static_cast<int>(rows.size());
  const auto found = std::find(rows.begin(), rows.end(), list_->currentRow());
  const int at = mark_ == Mark::NewBirth   ? clients
                 : mark_ == Mark::NewQuery ? clients + 1
                                           : static_cast<int>(found - rows.begin());
  const int to = std::clamp(at + by, 0, clients + 1);
  if (to < clients) {
    Take(Mark::Client, rows[static_cast<std::size_t>(to)]);
  } else {
    Take(to == clients ? Mark::NewBirth : Mark::NewQuery, -1);
  }
}

void FindAnyonePopup::Take(Mark mark, int row) {
  mark_ = mark;
  list_->setCurrentRow(row);
  birth_->setChecked(mark == Mark::NewBirth);
  query_->setChecked(mark == Mark::NewQuery);
}

}  // namespace orvex::ui
