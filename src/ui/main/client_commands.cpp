#include "ui/main/client_commands.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>
#include <memory>

#include "chart/instant_chart.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "ui/base/keys.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/dialogs/group_dialog.h"
#include "ui/dialogs/move_dialog.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/client_lists.h"

namespace orvex::ui {

ClientCommands::ClientCommands(Workplace& place, ClientLists& lists, QWidget& window)
    : QObject(&window),
      AddClient(Make("addClient", tr("&Add Client…"), &ClientCommands::RunAddClient)),
      NewQuery(Make("newQuery", tr("Add &Query…"), &ClientCommands::RunNewQuery)),
      View(Make("viewHoroscope", tr("&View Horoscope"), &ClientCommands::RunView)),
      Report(Make("reportOfClient", tr("&Report…"), &ClientCommands::RunReport)),
      EditClient(Make("editClient", tr("&Edit Client…"), &ClientCommands::RunEditClient)),
      DeleteClient(Make("deleteClient", tr("&Delete Client"), &ClientCommands::RunDeleteClient)),
      UndoDelete(Make("undoDelete", {}, &ClientCommands::RunUndoDelete)),
      MoveClient(Make("moveClient", tr("&Move to Group…"), &ClientCommands::RunMoveClient)),
      AddGroup(Make("addGroup", tr("Add &Group…"), &ClientCommands::RunAddGroup)),
      EditGroup(Make("editGroup", tr("Ed&it Group…"), &ClientCommands::RunEditGroup)),
      DeleteGroup(Make("deleteGroup", tr("De&lete Group"), &ClientCommands::RunDeleteGroup)),
      InstantChart(Make("instantChart", tr("&Instant Chart"), &ClientCommands::RunInstantChart)),
      place_(place),
      lists_(lists),
      window_(window) {
  for (QAction* action : {View, Report, EditClient, DeleteClient, MoveClient}) {
    lists.ClientTable().AddMenuAction(action);
  }
  for (QAction* action : {AddGroup, EditGroup, DeleteGroup}) {
    lists.GroupTable().AddMenuAction(action);
  }
  DeleteIn(lists.ClientTable(), *DeleteClient);
  DeleteIn(lists.GroupTable(), *DeleteGroup);
  lists.GroupTable().installEventFilter(this);
  connect(&lists, &ClientLists::ChoiceChanged, this, &ClientCommands::Follow);
  connect(&lists, &ClientLists::ViewRequested, View, &QAction::trigger);
  OfferUndo();
}

// Some have no key of their own.
QAction* ClientCommands::Make(const char* name, const QString& text,
                              void (ClientCommands::*run)()) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  if (HasKeys(kMainWindow, name)) {
    action->setShortcut(KeysOf(kMainWindow, name));
  }
  connect(action, &QAction::triggered, this, run);
  return action;
}

void ClientCommands::DeleteIn(TableView& list, QAction& deletes) {
  connect(KeyInList(list, "deleteChosen"), &QShortcut::activated, &deletes, &QAction::trigger);
}

// In the list of groups the key that edits means the group.
bool ClientCommands::eventFilter(QObject* watched, QEvent* event) {
  const bool key = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (!key || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F2) {
    return QObject::eventFilter(watched, event);
  }
  event->accept();
  if (event->type() == QEvent::KeyPress) {
    EditGroup->trigger();
  }
  return true;
}

void ClientCommands::ActOn(TableView* list) {
  if (list_ != nullptr) {
    list_->disconnect(this);
  }
  sees_ = true;
  list_ = list;
  if (list_ != nullptr) {
    connect(list_, &TableView::TagChosen, this, &ClientCommands::Follow);
  }
  Follow();
}

void ClientCommands::ActOnNothing() {
  ActOn(nullptr);
  sees_ = false;
  Follow();
}

std::int32_t ClientCommands::Client() const {
  if (!sees_) {
    return 0;
  }
  return list_ == nullptr ? lists_.Client() : IdOfTag(list_->SelectedTag()).value_or(0);
}

void ClientCommands::Follow() {
  const bool hasGroup = lists_.Group() != 0;
  const bool hasClient = Client() != 0;
  AddClient->setEnabled(hasGroup);
  NewQuery->setEnabled(hasGroup);
  const bool ownsGroup = lists_.Group() > 0 && OnLists();
  EditGroup->setEnabled(ownsGroup);
  DeleteGroup->setEnabled(ownsGroup);
  for (QAction* action : {View, Report, EditClient, DeleteClient}) {
    action->setEnabled(hasClient);
  }
  MoveClient->setEnabled(hasClient && lists_.GroupCount() > 1);
}

bool ClientCommands::Refused(const std::optional<core::Refusal>& refused) {
  if (refused) {
    place_.Session.Shown.ShowMessage(refused->Text, core::MessageButtons::Ok, refused->Icon);
  }
  return refused.has_value();
}

void ClientCommands::ShowNewClient(std::int32_t groupId, std::int32_t clientId) {
  emit PageWanted();
  lists_.ShowGroup(groupId, clientId);
  emit ClientsChanged();
  Open(clientId);
  HoroscopeWindow* window = OpenHoroscope(place_, clientId);
  // Who has put a query asks whether it will be.
  if (window != nullptr && window->IsQuery()) {
    window->JudgeMatter();
  }
}

void ClientCommands::AddNamed(const QString& name, bool query) {
  const std::unique_ptr<ClientDialog> dialog(
      ClientDialog::ForNew(place_, lists_.OwnGroup(), &window_));
  if (query || !name.isEmpty()) {
    dialog->Begin(name, query);
  }
  if (dialog->exec() == QDialog::Accepted) {
    ShowNewClient(dialog->GroupId(), dialog->SavedId());
  }
}

void ClientCommands::RunView() { Open(Client()); }

void ClientCommands::Open(std::int32_t clientId) {
  lists_.NoteOpened(clientId);
  OpenHoroscope(place_, clientId);
}

void ClientCommands::RunReport() {
  const std::int32_t client = Client();
  lists_.NoteOpened(client);
  if (HoroscopeWindow* window = OpenHoroscope(place_, client)) {
    auto* reports = window->findChild<QAction*>("exportMenu");
    QMetaObject::invokeMethod(reports, &QAction::trigger, Qt::QueuedConnection);
  }
}

void ClientCommands::RunEditClient() { Edit(Client()); }

void ClientCommands::Edit(std::int32_t clientId) {
  if (Refused(practice::CheckEditClient(place_.Session, clientId))) {
    return;
  }
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForEdit(place_, clientId, &window_));
  if (dialog && dialog->exec() == QDialog::Accepted) {
    ShowChanged(clientId);
  }
}

void ClientCommands::ShowInGroup(std::int32_t clientId) {
  emit PageWanted();
  lists_.ShowGroup(practice::PlaceOfClient(place_.Session, clientId).GroupId, clientId);
  lists_.ClientTable().setFocus();
}

void ClientCommands::RunDeleteClient() {
  const std::int32_t client = Client();
  if (Refused(practice::CheckDeleteClient(place_.Session, client)) ||
      !Ask(place_.Session.Shown, practice::DeleteClientQuestion(place_.Session, client))) {
    return;
  }
  std::optional<practice::KeptClient> kept = practice::KeepClient(place_.Session, client);
  if (Refused(practice::DeleteClient(place_.Session, client).Refused)) {
    return;
  }
  if (kept) {
    deleted_.push_back(std::move(*kept));
    OfferUndo();
  }
  TableView& list = list_ == nullptr ? lists_.ClientTable() : *list_;
  ShowChanged(lists_.Client());
  list.setFocus();
}

void ClientCommands::OfferUndo() {
  UndoDelete->setVisible(!deleted_.empty());
  UndoDelete->setEnabled(!deleted_.empty());
  if (!deleted_.empty()) {
    const QString name = Shown(deleted_.back().ClientName);
    UndoDelete->setText(tr("&Undo deletion of %1").arg(QString(name).replace('&', "&&")));
  }
}

void ClientCommands::RunUndoDelete() {
  const core::SaveResult back = practice::BringBack(place_.Session, deleted_.back());
  if (Refused(back.Refused)) {
    return;
  }
  deleted_.pop_back();
  OfferUndo();
  lists_.LoadGroups();
  lists_.ShowGroup(practice::PlaceOfClient(place_.Session, back.Id).GroupId, back.Id);
  emit ClientsChanged();
}

// A client has changed or is gone; the client chosen in the lists stays so.
void ClientCommands::ShowChanged(std::int32_t clientId) {
  const std::int32_t chosen = OnLists() ? clientId : lists_.Client();
  lists_.ReloadClients(chosen);
  emit ClientsChanged();
}

void ClientCommands::RunMoveClient() {
  const std::int32_t client = Client();
  const practice::ClientPlace from = practice::PlaceOfClient(place_.Session, client);
  MoveDialog dialog(place_, client, Shown(from.ClientName), Shown(from.GroupName), &window_);
  if (dialog.exec() == QDialog::Accepted) {
    ShowChanged(client);
  }
}

void ClientCommands::RunAddGroup() {
  GroupDialog dialog(place_, &window_);
  if (dialog.exec() == QDialog::Accepted) {
    lists_.LoadGroups();
  }
}

void ClientCommands::RunEditGroup() {
  const std::optional<std::string> name = practice::OpenEditGroup(place_.Session, lists_.Group());
  if (!name) {
    return;
  }
  GroupDialog dialog(place_, lists_.Group(), Shown(*name), &window_);
  if (dialog.exec() == QDialog::Accepted) {
    lists_.LoadGroups();
  }
}

void ClientCommands::RunDeleteGroup() {
  if (Refused(practice::CheckDeleteGroup(place_.Session)) ||
      !Ask(place_.Session.Shown, practice::DeleteGroupQuestion(place_.Session, lists_.Group())) ||
      Refused(practice::DeleteGroup(place_.Session, lists_.Group()).Refused)) {
    return;
  }
  lists_.LoadGroups();
  emit ClientsChanged();
}

void ClientCommands::RunInstantChart() {
  constexpr int kRounds = 10;
  if (place_.Session.State.InstantChartGroupId == 0) {
    if (Ask(place_.Session.Shown, chart::kInstantChartQuestion)) {
      emit SettingsWanted();
    }
    return;
  }
  emit PageWanted();
  for (int round = 0; round < kRounds; ++round) {
    QCoreApplication::processEvents();
  }
  const core::SaveResult saved =
      chart::CreateInstantChart(place_.Session, chart::Creation::InASecondOfItsOwn);
  if (!Refused(saved.Refused)) {
    ShowNewClient(place_.Session.State.InstantChartGroupId, saved.Id);
  }
}

}  // namespace orvex::ui
