#include "ui/main/client_lists.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "practice/client_list.h"
#include "practice/groups.h"
#include "ui/base/elided_label.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/table_plan.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/main/client_cells.h"
#include "ui/main/group_column.h"

namespace orvex::ui {

namespace {

constexpr int kFilterWidth = 118;

// What a practice looks at first; telephone and e-mail where there is room.
std::vector<ColumnPlan> FirstColumns() {
  return {{"Client Name", CellKind::Text, 126, 0},
          {"Birth/Horary Date", CellKind::Text, 116, 0},
          {"City", CellKind::Text, 78, 1},
          {"Mobile", CellKind::Text, 104, 2},
          {"Email", CellKind::Text, 116, 3}};
}

// The name in the first cell of the chosen row.
QString ChosenName(const TableView& table) {
  const std::optional<int> row = table.ChosenRow();
  return row ? table.Model().index(*row, 0).data().toString() : QString();
}

TableView* ClientView() {
  auto* table = Named(new TableView, "clientList");
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setAccessibleName(ClientLists::tr("Clients"));
  table->SetEmptyText(practice::kNoClients);
  table->verticalHeader()->setDefaultSectionSize(Scaled(height::kClientRow));
  return table;
}

}  // namespace

ClientLists::ClientLists(Workplace& place, GroupColumn& groups, QWidget* parent)
    : QWidget(parent),
      place_(place),
      groups_(groups),
      title_(new ElidedLabel("groupTitle")),
      box_(Named(new QComboBox, "groupBox")),
      count_(new ElidedLabel("listCount")),
      filter_(Named(new QLineEdit, "clientFilter")),
      allColumns_(MakeButton("allColumnsButton", {})),
      clients_(ClientView()),
      plan_(new TablePlan(*clients_, FirstColumns(),
                          {Scaled(height::kClientRow), Scaled(height::kClientRow), false})) {
  setObjectName("clientLists");
  PlanClients();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(space::kM, space::kM, space::kM, 0);
  column->setSpacing(space::kS);
  column->addLayout(MakeHead());
  column->addWidget(clients_, 1);
  Connect();
}

void ClientLists::PlanClients() {
  const auto column = [](practice::ClientColumn name) { return static_cast<int>(name); };
  clients_->setItemDelegateForColumn(column(practice::ClientColumn::ClientName),
                                     new ClientNameDelegate(clients_));
  for (const practice::ClientColumn date :
       {practice::ClientColumn::BirthDate, practice::ClientColumn::CreatedOn}) {
    clients_->setItemDelegateForColumn(column(date), new ShortDateDelegate(clients_));
  }
}

QHBoxLayout* ClientLists::MakeHead() {
  title_->setFont(Theme::Serif(type::kName));
  box_->setAccessibleName(tr("Groups"));
  box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box_->hide();
  count_->setFont(Theme::Text(type::kSmall));
  count_->setForegroundRole(QPalette::PlaceholderText);
  filter_->setAccessibleName(tr("Filter clients"));
  filter_->setPlaceholderText(KeysOf(kMainWindow, "filterClients").toString());
  filter_->setToolTip(WithKeys(tr("Narrow the list"), KeysOf(kMainWindow, "filterClients")));
  filter_->addAction(Icon("filter", IconInk::Quiet), QLineEdit::LeadingPosition);
  filter_->setClearButtonEnabled(true);
  filter_->setFixedWidth(Scaled(kFilterWidth));
  filter_->installEventFilter(this);
  allColumns_->setIcon(Icon("columns"));
  allColumns_->setCheckable(true);
  allColumns_->setAccessibleName(tr("All columns"));
  allColumns_->setFixedSize(Scaled(height::kSmallField + 2), Scaled(height::kSmallField));
  BindKeys(*allColumns_, KeysOf(kMainWindow, "allColumns"));
  allColumns_->setToolTip(WithKeys(tr("All columns"), KeysOf(kMainWindow, "allColumns")));
  auto* head = new QHBoxLayout;
  head->setSpacing(space::kS);
  head->addWidget(title_);
  head->addWidget(box_, 1);
  head->addWidget(count_, 1);
  head->addWidget(filter_);
  head->addWidget(allColumns_);
  return head;
}

TableView& ClientLists::GroupTable() { return groups_.Groups(); }

void ClientLists::Connect() {
  connect(&GroupTable(), &TableView::TagChosen, this,
          [this](const QString& tag) { ShowGroup(IdOfTag(Typed(tag)).value_or(0)); });
  connect(&groups_, &GroupColumn::ClientsWanted, clients_, qOverload<>(&QWidget::setFocus));
  connect(box_, &QComboBox::activated, this,
          [this](int entry) { ShowGroup(box_->itemData(entry).toInt()); });
  connect(filter_, &QLineEdit::textChanged, this, &ClientLists::FilterClients);
  connect(allColumns_, &QPushButton::toggled, this, &ClientLists::ShowAllColumns);
  connect(clients_, &TableView::TagChosen, this,
          [this](const QString& tag) { ChooseClient(IdOfTag(Typed(tag)).value_or(0)); });
  connect(clients_, &TableView::TagActivated, this, &ClientLists::ViewRequested);
}

void ClientLists::LoadGroups() {
  const std::int32_t chosen = group_;
  const QSignalBlocker quiet(&GroupTable());
  ShowCounts();
  emit GroupsLoaded();
  if (GroupCount() == 0) {
    ShowNoGroups();
    return;
  }
  if (chosen == 0 || !GroupTable().SelectTag(Typed(WholeText(chosen)))) {
    GroupTable().SelectTag(practice::LoadGroups(place_.Session).Rows.front().Tag);
  }
  ShowGroup(IdOfTag(GroupTable().SelectedTag()).value_or(0));
}

void ClientLists::ShowCounts() {
  const QSignalBlocker quiet(&GroupTable());
  GroupTable().SetTable(practice::LoadGroupsWithCounts(place_.Session));
  GroupTable().SelectTag(Typed(WholeText(group_)));
  box_->clear();
  for (const core::Row& row : GroupTable().Table().Rows) {
    box_->addItem(Shown(row.Cells.front().Text), IdOfTag(row.Tag).value_or(0));
  }
  box_->setCurrentIndex(box_->findData(group_));
}

void ClientLists::ShowNoGroups() {
  group_ = ownGroup_ = 0;
  clients_->SetTable({});
  plan_->Fit();
  filter_->setEnabled(false);
  client_ = 0;
  narrowed_ = false;
  ShowTitle();
  Tell(practice::kNoGroupsStatus);
  emit ChoiceChanged();
}

void ClientLists::FollowStore() {
  const core::Table stored = group_ == 0 ? core::Table{} : LoadClients();
  const auto same = [](const core::Row& left, const core::Row& right) {
    return left.Tag == right.Tag &&
           std::equal(left.Cells.begin(), left.Cells.end(), right.Cells.begin(), right.Cells.end(),
                      [](const core::Cell& a, const core::Cell& b) { return a.Text == b.Text; });
  };
  const std::vector<core::Row>& shown = Clients().Rows;
  if (std::equal(shown.begin(), shown.end(), stored.Rows.begin(), stored.Rows.end(), same)) {
    return;
  }
  const QString narrowing = filter_->text();
  ShowGroup(group_, client_);
  ShowCounts();
  filter_->setText(narrowing);
}

core::Table ClientLists::LoadClients() const {
  if (group_ == practice::kRecentClients) {
    return practice::LoadRecentClients(place_.Session, opened_);
  }
  return practice::LoadClientsOfGroup(
      place_.Session, group_ == practice::kAllClients ? std::nullopt : std::optional(group_));
}

void ClientLists::ShowGroup(std::int32_t groupId, std::int32_t clientId) {
  group_ = groupId;
  ownGroup_ = groupId > 0 || ownGroup_ == 0 ? std::max(groupId, 0) : ownGroup_;
  {
    const QSignalBlocker quietGroups(&GroupTable());
    const QSignalBlocker quietFilter(filter_);
    const QSignalBlocker quietClients(clients_);
    GroupTable().SelectTag(Typed(WholeText(groupId)));
    box_->setCurrentIndex(box_->findData(groupId));
    filter_->clear();
    clients_->SetTable(LoadClients());
    plan_->Fit();
    ShowOrder();
    if (!clients_->SelectTag(Typed(WholeText(clientId)))) {
      clients_->SelectFirst();
    }
  }
  narrowed_ = false;
  filter_->setEnabled(!Clients().Rows.empty());
  ShowTitle();
  Tell(practice::ClientCountText(Clients().Rows.size(), false));
  ChooseClient(IdOfTag(clients_->SelectedTag()).value_or(0));
}

void ClientLists::ShowTitle() { title_->setText(GroupName()); }

void ClientLists::Tell(const std::string& count) {
  count_->setText(group_ == 0 ? QString() : Shown(count));
  emit CountChanged(Shown(count));
}

// A newly set order stands until the user clicks on a header. The recent ones have an order of
// their own, which a click on a header turns for as long as they are in sight.
void ClientLists::ShowOrder() {
  const bool recent = group_ == practice::kRecentClients;
  const std::string order = recent ? "recent" : place_.Session.State.SortColumn;
  if (sortColumn_ == order) {
    return;
  }
  sortColumn_ = order;
  clients_->sortByColumn(recent ? -1 : static_cast<int>(practice::SortedColumn(place_.Session)),
                         Qt::AscendingOrder);
}

void ClientLists::ChooseClient(std::int32_t clientId) {
  client_ = clientId;
  narrowed_ = narrowed_ && clientId == 0;
  emit ChoiceChanged();
}

void ClientLists::FilterClients(const QString& text) {
  {
    const QSignalBlocker quiet(clients_);
    clients_->SetFilter(text);
    clients_->ChooseNone();
  }
  narrowed_ = true;
  const auto count = static_cast<std::size_t>(clients_->Model().rowCount());
  Tell(practice::ClientCountText(count, !text.isEmpty()));
  ChooseClient(0);
}

// Down leads into the list; Escape takes the text back, and then leaves the field.
bool ClientLists::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Escape) {
      LeaveFilter(key);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void ClientLists::LeaveFilter(int key) {
  if (key == Qt::Key_Escape && !filter_->text().isEmpty()) {
    filter_->clear();
    return;
  }
  clients_->setFocus(Qt::OtherFocusReason);
  if (!clients_->ChosenRow()) {
    clients_->SelectFirst();
  }
}

QString ClientLists::GroupName() const { return ChosenName(groups_.Groups()); }
QString ClientLists::ClientName() const { return ChosenName(*clients_); }
const core::Table& ClientLists::Clients() const { return clients_->Table(); }

std::size_t ClientLists::GroupCount() const {
  constexpr std::size_t kRowsAbove = 2;
  const std::size_t rows = groups_.Groups().Table().Rows.size();
  return rows > kRowsAbove ? rows - kRowsAbove : 0;
}

void ClientLists::FocusFilter() {
  filter_->setFocus();
  filter_->selectAll();
}

void ClientLists::SetGroupsAsBox(bool box) {
  box_->setVisible(box);
  title_->setVisible(!box);
  groups_.setVisible(!box);
}

void ClientLists::ShowAllColumns(bool all) { plan_->ShowAll(all); }

}  // namespace orvex::ui
