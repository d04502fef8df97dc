#include "ui/main/client_lists.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QVBoxLayout>

#include "practice/client_list.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

TableView* Named(const char* name) {
  auto* table = new TableView;
  table->setObjectName(name);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  return table;
}

// The name in the first cell of the chosen row.
QString ChosenName(const TableView& table) {
  const std::optional<int> row = table.ChosenRow();
  return row ? table.Model().index(*row, 0).data().toString() : QString();
}

QVBoxLayout* Column(QWidget* parent) {
  auto* column = new QVBoxLayout(parent);
  column->setContentsMargins(0, 0, 0, 0);
  return column;
}

}  // namespace

ClientLists::ClientLists(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      groups_(Named("groupList")),
      filter_(new QLineEdit),
      clients_(Named("clientList")),
      remedyCaption_(new QLabel(practice::kNoRemedyCaption)),
      remedies_(Named("remedyList")) {
  auto* columns = new QSplitter(Qt::Horizontal);
  columns->setObjectName("groupsAndClients");
  auto* rows = new QSplitter(Qt::Vertical);
  rows->setObjectName("clientsAndRemedies");
  rows->addWidget(BuildClients());
  rows->addWidget(BuildRemedies());
  rows->setStretchFactor(0, 3);
  rows->setStretchFactor(1, 1);
  columns->addWidget(BuildGroups());
  columns->addWidget(rows);
  columns->setStretchFactor(1, 1);
  columns->setSizes({18 * kGrid, 64 * kGrid});
  place_.Layout.Remember(*rows);
  place_.Layout.Remember(*columns);
  Column(this)->addWidget(columns);
  Connect();
}

QWidget* ClientLists::BuildGroups() {
  groups_->setAccessibleName(tr("Groups"));
  groups_->horizontalHeader()->setSortIndicatorShown(false);
  groups_->SetStretchColumn(0);
  groups_->SetEmptyText(practice::kNoGroups);
  groups_->setMinimumWidth(14 * kGrid);
  return groups_;
}

QWidget* ClientLists::BuildClients() {
  filter_->setObjectName("clientFilter");
  filter_->setPlaceholderText(tr("Filter clients (Ctrl+F)"));
  filter_->setClearButtonEnabled(true);
  clients_->setAccessibleName(tr("Clients"));
  clients_->SetEmptyText(practice::kNoClients);
  auto* box = new QWidget;
  QVBoxLayout* column = Column(box);
  column->addWidget(filter_);
  column->addWidget(clients_, 1);
  return box;
}

QWidget* ClientLists::BuildRemedies() {
  remedyCaption_->setObjectName("remedyCaption");
  remedyCaption_->setTextFormat(Qt::PlainText);
  remedies_->setAccessibleName(tr("Remedies"));
  remedies_->SetEmptyText(tr("Remedies are written in the client's horoscope."));
  auto* box = new QWidget;
  QVBoxLayout* column = Column(box);
  column->addWidget(remedyCaption_);
  column->addWidget(remedies_, 1);
  return box;
}

void ClientLists::Connect() {
  connect(groups_, &TableView::TagChosen, this,
          [this](const QString& tag) { ShowGroup(IdOfTag(Typed(tag)).value_or(0)); });
  connect(filter_, &QLineEdit::textChanged, this, &ClientLists::FilterClients);
  connect(clients_, &TableView::TagChosen, this,
          [this](const QString& tag) { ChooseClient(IdOfTag(Typed(tag)).value_or(0)); });
  connect(clients_, &TableView::TagActivated, this, &ClientLists::ViewRequested);
}

void ClientLists::LoadGroups() {
  const std::int32_t chosen = group_;
  const QSignalBlocker quiet(groups_);
  groups_->SetTable(practice::LoadGroups(place_.Session));
  emit GroupsLoaded();
  if (GroupCount() == 0) {
    ShowNoGroups();
    return;
  }
  if (chosen == 0 || !groups_->SelectTag(Typed(WholeText(chosen)))) {
    groups_->SelectFirst();
  }
  ShowGroup(IdOfTag(groups_->SelectedTag()).value_or(0));
}

void ClientLists::ShowNoGroups() {
  group_ = 0;
  clients_->SetTable({});
  remedies_->SetTable({});
  filter_->setEnabled(false);
  client_ = 0;
  emit CountChanged(practice::kNoGroupsStatus);
  emit ChoiceChanged();
}

void ClientLists::ShowGroup(std::int32_t groupId, std::int32_t clientId) {
  group_ = groupId;
  {
    const QSignalBlocker quietGroups(groups_);
    const QSignalBlocker quietFilter(filter_);
    const QSignalBlocker quietClients(clients_);
    groups_->SelectTag(Typed(WholeText(groupId)));
    filter_->clear();
    clients_->SetTable(practice::LoadClientsOfGroup(place_.Session, groupId));
    ShowOrder();
    if (!clients_->SelectTag(Typed(WholeText(clientId)))) {
      clients_->SelectFirst();
    }
  }
  filter_->setEnabled(!Clients().Rows.empty());
  emit CountChanged(Shown(practice::ClientCountText(Clients().Rows.size(), false)));
  ChooseClient(IdOfTag(clients_->SelectedTag()).value_or(0));
}

// A newly set order stands until the user clicks on a header.
void ClientLists::ShowOrder() {
  if (sortColumn_ != place_.Session.State.SortColumn) {
    sortColumn_ = place_.Session.State.SortColumn;
    clients_->sortByColumn(static_cast<int>(practice::SortedColumn(place_.Session)),
                           Qt::AscendingOrder);
  }
}

void ClientLists::ChooseClient(std::int32_t clientId) {
  client_ = clientId;
  ReloadRemedies();
  emit ChoiceChanged();
}

void ClientLists::ReloadRemedies() {
  if (client_ == 0) {
    remedies_->SetTable({});
    remedyCaption_->setText(practice::kNoRemedyCaption);
    return;
  }
  remedyCaption_->setText(Shown(practice::RemedyCaption(Typed(ClientName()))));
  remedies_->SetTable(practice::LoadRemedies(place_.Session, client_));
}

void ClientLists::FilterClients(const QString& text) {
  {
    const QSignalBlocker quiet(clients_);
    clients_->SetFilter(text);
    clients_->ChooseNone();
  }
  ChooseClient(0);
  remedyCaption_->setText(practice::kFilteredRemedyCaption);
  const auto count = static_cast<std::size_t>(clients_->Model().rowCount());
  emit CountChanged(Shown(practice::ClientCountText(count, !text.isEmpty())));
}

QString ClientLists::GroupName() const { return ChosenName(*groups_); }
QString ClientLists::ClientName() const { return ChosenName(*clients_); }
std::size_t ClientLists::GroupCount() const { return groups_->Table().Rows.size(); }
const core::Table& ClientLists::Clients() const { return clients_->Table(); }

void ClientLists::FocusFilter() {
  filter_->setFocus();
  filter_->selectAll();
}

}  // namespace orvex::ui
