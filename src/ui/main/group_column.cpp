#include "ui/main/group_column.h"

#include <QAction>
#include <QHeaderView>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

#include "practice/birthdays.h"
#include "practice/groups.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/main/client_cells.h"
#include "ui/main/name_link.h"

namespace orvex::ui {

namespace {

constexpr std::size_t kMostNames = 4;

}  // namespace

GroupColumn::GroupColumn(Workplace& /*place*/)
    : add_(Named(new QToolButton, "addGroupButton")),
      groups_(Named(new TableView, "groupList")),
      foot_(new QWidget),
      caption_(new LinkButton("birthdaysLink")),
      names_(new QVBoxLayout) {
  setObjectName("groupColumn");
  add_->setAutoRaise(true);
  add_->setIconSize({kWordIcon, kWordIcon});
  groups_->setAccessibleName(tr("Groups"));
  groups_->setSelectionMode(QAbstractItemView::SingleSelection);
  groups_->setFrameShape(QFrame::NoFrame);
  groups_->setSortingEnabled(false);
  groups_->horizontalHeader()->hide();
  groups_->setItemDelegate(new GroupDelegate(groups_));
  groups_->viewport()->setBackgroundRole(QPalette::AlternateBase);
  groups_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  groups_->SetStretchColumn(static_cast<int>(practice::GroupCountColumn::GroupName));
  groups_->SetEmptyText(practice::kNoGroups);
  groups_->verticalHeader()->setDefaultSectionSize(Scaled(height::kListRow + 2));
  connect(groups_, &TableView::TagActivated, this, &GroupColumn::ClientsWanted);
  auto* head = new QHBoxLayout;
  head->setContentsMargins(space::kM, space::kS, space::kS, space::kXs);
  head->addWidget(MakeHeading(tr("Groups")), 1);
  head->addWidget(add_);
  caption_->setFont(Theme::Text(type::kSmall, QFont::DemiBold));
  connect(caption_, &QPushButton::clicked, this, &GroupColumn::TodayWanted);
  auto* foot = new QVBoxLayout(foot_);
  foot->setContentsMargins(space::kM, space::kS, space::kXs, space::kM);
  foot->setSpacing(2);
  foot->addWidget(caption_, 0, Qt::AlignLeft);
  foot->addLayout(names_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addWidget(groups_, 1);
  layout->addWidget(foot_);
}

void GroupColumn::SetAddAction(QAction* action) {
  add_->setIcon(Icon("add"));
  add_->setAccessibleName(WithKeys(action->text(), {}));
  add_->setToolTip(WithKeys(action->text(), action->shortcut()));
  connect(add_, &QToolButton::clicked, action, &QAction::trigger);
}

void GroupColumn::ShowBirthdays(const core::Table& birthdays) {
  while (QLayoutItem* item = names_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  foot_->setVisible(!birthdays.Rows.empty());
  caption_->setText(Shown(practice::BirthdayCaption(birthdays)));
  caption_->setToolTip(WithKeys(caption_->text(), KeysOf(kMainWindow, "showToday")));
  for (std::size_t row = 0; row < std::min(birthdays.Rows.size(), kMostNames); ++row) {
    AddBirthday(IdOfTag(birthdays.Rows[row].Tag).value_or(0),
                Shown(birthdays.At(row, practice::BirthdayColumn::ClientName).Text),
                Shown(birthdays.At(row, practice::BirthdayColumn::Age).Text));
  }
}

void GroupColumn::AddBirthday(std::int32_t client, const QString& name, const QString& age) {
  auto* link = new NameLink(name, age);
  connect(link, &NameLink::clicked, this, [this, client] { emit ClientWanted(client); });
  names_->addWidget(link);
}

void GroupColumn::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(rect(), t.Sunk);
  if (foot_->isVisible()) {
    painter.fillRect(QRect(0, foot_->y(), width(), line::kHair), t.Rule2);
  }
}

}  // namespace orvex::ui
