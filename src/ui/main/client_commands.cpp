#include "ui/main/client_commands.h"

#include <QCoreApplication>
#include <QWidget>
#include <memory>

#include "chart/instant_chart.h"
#include "practice/client_list.h"
#include "practice/groups.h"
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
      AddClient(
          Make("addClient", tr("&Add Client…"), QKeySequence::New, &ClientCommands::RunAddClient)),
      View(Make("viewHoroscope", tr("&View Horoscope"), tr("Ctrl+Return"),
                &ClientCommands::RunView)),
      EditClient(Make("editClient", tr("&Edit Client…"), tr("F2"), &ClientCommands::RunEditClient)),
      DeleteClient(Make("deleteClient", tr("&Delete Client"), tr("Ctrl+Del"),
                        &ClientCommands::RunDeleteClient)),
      MoveClient(
          Make("moveClient", tr("&Move to Group…"), tr("Ctrl+M"), &ClientCommands::RunMoveClient)),
      AddGroup(Make("addGroup", tr("Add &Group…"), tr("Ctrl+G"), &ClientCommands::RunAddGroup)),
      EditGroup(Make("editGroup", tr("Ed&it Group…"), {}, &ClientCommands::RunEditGroup)),
      DeleteGroup(Make("deleteGroup", tr("De&lete Group"), {}, &ClientCommands::RunDeleteGroup)),
      InstantChart(Make("instantChart", tr("&Instant Chart"), tr("Ctrl+I"),
                        &ClientCommands::RunInstantChart)),
      place_(place),
      lists_(lists),
      window_(window) {
  for (QAction* action : {View, EditClient, DeleteClient, MoveClient}) {
    lists.ClientTable().AddMenuAction(action);
  }
  for (QAction* action : {AddGroup, EditGroup, DeleteGroup}) {
    lists.GroupTable().AddMenuAction(action);
  }
  connect(&lists, &ClientLists::ChoiceChanged, this, &ClientCommands::Follow);
  connect(&lists, &ClientLists::ViewRequested, View, &QAction::trigger);
}

QAction* ClientCommands::Make(const char* name, const QString& text, const QKeySequence& keys,
                              void (ClientCommands::*run)()) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, run);
  return action;
}

void ClientCommands::Follow() {
  const bool hasGroup = lists_.Group() != 0;
  const bool hasClient = lists_.Client() != 0;
  AddClient->setEnabled(hasGroup);
  EditGroup->setEnabled(hasGroup);
  DeleteGroup->setEnabled(hasGroup);
  for (QAction* action : {View, EditClient, DeleteClient}) {
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

void ClientCommands::ShowNewClient(std::int32_t clientId) {
  emit ClientsChanged();
  lists_.SelectClient(clientId);
  OpenHoroscope(place_, clientId);
}

void ClientCommands::RunAddClient() {
  const std::unique_ptr<ClientDialog> dialog(
      ClientDialog::ForNew(place_, lists_.Group(), &window_));
  if (dialog->exec() == QDialog::Accepted) {
    if (dialog->GroupId() == lists_.Group()) {
      lists_.ReloadClients();
    } else {
      lists_.ShowGroup(dialog->GroupId());
    }
    ShowNewClient(dialog->SavedId());
  }
}

void ClientCommands::RunView() { OpenHoroscope(place_, lists_.Client()); }

void ClientCommands::RunEditClient() {
  const std::int32_t client = lists_.Client();
  if (Refused(practice::CheckEditClient(place_.Session, client))) {
    return;
  }
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForEdit(place_, client, &window_));
  if (dialog && dialog->exec() == QDialog::Accepted) {
    lists_.ReloadClients();
    lists_.SelectClient(client);
    emit ClientsChanged();
  }
}

void ClientCommands::RunDeleteClient() {
  if (Refused(practice::CheckDeleteClient(place_.Session, lists_.Client())) ||
      !Ask(place_.Session.Shown, practice::kDeleteClientQuestion) ||
      Refused(practice::DeleteClient(place_.Session, lists_.Client()).Refused)) {
    return;
  }
  lists_.ReloadClients();
  lists_.ClientTable().setFocus();
  emit ClientsChanged();
}

void ClientCommands::RunMoveClient() {
  MoveDialog dialog(place_, lists_.Client(), lists_.ClientName(), lists_.GroupName(), &window_);
  if (dialog.exec() == QDialog::Accepted) {
    lists_.ReloadClients();
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
      !Ask(place_.Session.Shown, practice::kDeleteGroupQuestion) ||
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
  const core::SaveResult saved = chart::CreateInstantChart(place_.Session);
  if (!Refused(saved.Refused)) {
    lists_.ShowGroup(place_.Session.State.InstantChartGroupId);
    ShowNewClient(saved.Id);
  }
}

}  // namespace orvex::ui
