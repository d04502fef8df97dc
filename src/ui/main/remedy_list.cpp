#include "ui/main/remedy_list.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <algorithm>

#include "practice/remedies.h"
#include "ui/base/cell_delegate.h"
#include "ui/base/cell_text.h"
#include "ui/base/elided_label.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/table_plan.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kMostRows = 3;

// A remedy in two lines over the whole row: chip, problem and date, below them the solution.
class TwoLines final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Tokens& t = Theme::Now();
    QStyleOptionViewItem own = option;
    initStyleOption(&own, index);
    const auto text = [&index](practice::RemedyColumn column) {
      return index.siblingAtColumn(static_cast<int>(column)).data().toString();
    };
    painter->save();
    own.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &own, painter, own.widget);
    QRect room = own.rect.adjusted(space::kXs, space::kXs, -space::kXs, -space::kXs);
    if (const QString code = CodeOfWord(text(practice::RemedyColumn::ForPlanet)); !code.isEmpty()) {
      DrawChip(*painter, QRect(room.topLeft(), ChipSize()), code, false);
    }
    room.setLeft(room.left() + ChipSize().width() + space::kS);
    const int half = room.height() / 2;
    const QRect upper(room.left(), room.top(), room.width(), half);
    painter->setFont(Theme::Text(type::kSmall));
    painter->setPen(t.Ink2);
    const QString date = ShortDate(text(practice::RemedyColumn::RemedyDate));
    const int wide = painter->fontMetrics().horizontalAdvance(date);
    painter->drawText(upper, Qt::AlignRight | Qt::AlignVCenter, date);
    Words(*painter, upper.adjusted(0, half, 0, half), text(practice::RemedyColumn::Solution));
    painter->setFont(own.font);
    painter->setPen(t.Ink);
    Words(*painter, upper.adjusted(0, 0, -wide - space::kS, 0),
          text(practice::RemedyColumn::Problem));
    painter->fillRect(QRect(own.rect.left(), own.rect.bottom(), own.rect.width(), line::kHair),
                      t.Rule);
    painter->restore();
  }

 private:
  static QString ShortDate(const QString& text) {
    const std::optional<core::DateTime> date = core::ParseLongDateText(Typed(text));
    return date ? Shown(core::LongDateText(*date, true)) : text;
  }

  static void Words(QPainter& painter, const QRect& room, QString words) {
    words.replace('\n', ' ');
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
  }
};

}  // namespace

RemedyList::RemedyList(Workplace& place)
    : place_(place),
      caption_(new ElidedLabel("remedyCaption")),
      remedies_(Named(new TableView, "remedyList")),
      plan_(new TablePlan(*remedies_, {{"Problem", CellKind::Text, 100, 0}},
                          {height::kListRow, height::kListRow, false})),
      twoLines_(new TwoLines(remedies_)),
      all_(new LinkButton("allRemedies")) {
  caption_->setFont(Theme::Text(type::kText, QFont::DemiBold));
  remedies_->setSelectionMode(QAbstractItemView::SingleSelection);
  remedies_->setAccessibleName(tr("Remedies"));
  remedies_->SetEmptyText(tr("Remedies are written in the client's horoscope."));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  auto* head = new QHBoxLayout;
  head->addWidget(caption_, 1);
  head->addWidget(all_);
  layout->addLayout(head);
  layout->addWidget(remedies_);
  all_->setCheckable(true);
  all_->setToolTip(tr("The whole table"));
  connect(all_, &QPushButton::toggled, this, &RemedyList::ShowAll);
  ShowAll(false);
}

void RemedyList::ShowAll(bool all) {
  remedies_->horizontalHeader()->setVisible(all);
  remedies_->setItemDelegateForColumn(static_cast<int>(practice::RemedyColumn::Problem),
                                      all ? nullptr : twoLines_);
  plan_->ShowAll(all);
  TakeHeight();
}

void RemedyList::ShowRemedies(std::int32_t clientId, const QString& caption) {
  caption_->setText(caption);
  remedies_->SetTable(clientId == 0 ? core::Table{}
                                    : practice::LoadRemedies(place_.Session, clientId));
  plan_->Fit();
  const int rows = remedies_->Model().rowCount();
  all_->setVisible(rows > 0);
  all_->setText(tr("All %1").arg(rows));
  all_->setFixedWidth(all_->fontMetrics().horizontalAdvance(all_->text()) + space::kS);
  TakeHeight();
}

// A few remedies in sight, the others by the bar.
void RemedyList::TakeHeight() {
  const int row = Scaled(2 * height::kListRow - space::kXs);
  const int rows = std::clamp(remedies_->Model().rowCount(), 1, kMostRows);
  remedies_->verticalHeader()->setDefaultSectionSize(all_->isChecked() ? Scaled(height::kListRow)
                                                                       : row);
  remedies_->setFixedHeight(rows * row + 1);
}

}  // namespace orvex::ui
