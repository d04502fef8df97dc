#include "ui/main/exchange_commands.h"

#include <QWidget>

#include "practice/client_list.h"
#include "practice/groups.h"
#include "ui/base/keys.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/main/client_lists.h"
#include "ui/main/dropped_files.h"
#include "ui/main/export_dialog.h"
#include "ui/main/import_dialog.h"

namespace orvex::ui {

using exchange::ExportedClients;

ExchangeCommands::ExchangeCommands(Workplace& place, ClientLists& lists, TableView& found,
                                   QWidget& window)
    : QObject(&window),
      Import(Make("importBirths", tr("Im&port…"), &ExchangeCommands::RunImport)),
      Export(Make("exportClients", tr("Expo&rt…"), &ExchangeCommands::RunExport)),
      place_(place),
      lists_(lists),
      found_(found),
      window_(window) {
  auto* dropped = new DroppedFiles(window);
  connect(dropped, &DroppedFiles::Dropped, this, &ExchangeCommands::ImportFrom);
}

QAction* ExchangeCommands::Make(const char* name, const QString& text,
                                void (ExchangeCommands::*run)()) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setShortcut(KeysOf(kMainWindow, name));
  connect(action, &QAction::triggered, this, run);
  return action;
}

// Births need a group to go to.
void ExchangeCommands::ImportFrom(const std::vector<std::filesystem::path>& paths) {
  if (practice::LoadGroups(place_.Session).Rows.empty() || lists_.Group() == 0) {
    Inform(place_.Session.Shown, practice::kNoGroupsStatus);
    return;
  }
  ImportDialog dialog(place_, lists_.Group(), &window_);
  connect(&dialog, &ImportDialog::WritingChanged, this, &ExchangeCommands::WritingChanged);
  if (!paths.empty()) {
    dialog.ReadLater(paths);
  }
  if (dialog.exec() == QDialog::Accepted) {
    lists_.LoadGroups();
    lists_.ShowGroup(dialog.GroupId());
    emit ClientsChanged();
    emit Done(dialog.Result());
  }
}

// The client and the group that are chosen, all clients, what was found.
void ExchangeCommands::RunExport() {
  std::vector<exchange::ExportRequest> choices;
  if (lists_.Client() != 0) {
    choices.push_back({ExportedClients::One, {}, lists_.Client(), {}, Typed(lists_.ClientName())});
  }
  if (lists_.Group() != 0) {
    choices.push_back({ExportedClients::Group, {}, lists_.Group(), {}, Typed(lists_.GroupName())});
  }
  choices.push_back({ExportedClients::All, {}, 0, {}, "Clients"});
  const core::Table found = found_.ShownTable();
  if (!found.Rows.empty()) {
    choices.push_back({ExportedClients::Found, {}, 0, found, "Search Results"});
  }
  ExportDialog dialog(place_, std::move(choices), &window_);
  if (dialog.exec() == QDialog::Accepted) {
    emit Done(tr("Written: %1").arg(Shown(dialog.Written().string())));
  }
}

}  // namespace orvex::ui
