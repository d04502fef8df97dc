#include "ui/main/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QStatusBar>

#include "practice/client_list.h"
#include "ui/base/export_table.h"
#include "ui/base/guide.h"
#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/base/window_look.h"
#include "ui/base/window_print.h"
#include "ui/dialogs/about_box.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/matters_dialog.h"
#include "ui/dialogs/settings_dialog.h"
#include "ui/main/birthday_list.h"
#include "ui/main/client_card_panel.h"
#include "ui/main/client_commands.h"
#include "ui/main/client_lists.h"
#include "ui/main/clients_page.h"
#include "ui/main/exchange_commands.h"
#include "ui/main/find_anyone_box.h"
#include "ui/main/first_run.h"
#include "ui/main/group_column.h"
#include "ui/main/group_export.h"
#include "ui/main/main_menus.h"
#include "ui/main/main_pages.h"
#include "ui/main/next_pane.h"
#include "ui/main/rail.h"
#include "ui/main/search_page.h"
#include "ui/main/sky_column.h"
#include "ui/main/sky_panel.h"
#include "ui/main/today_page.h"
#include "ui/main/top_bar.h"
#include "ui/main/transit_commands.h"
#include "ui/transit/hora_view.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {

MainWindow::MainWindow(Workplace& place)
    : place_(place),
      rail_(new Rail),
      top_(new TopBar(place)),
      pages_(new MainPages),
      clientsPage_(new QStackedWidget),
      clients_(new ClientsPage(place)),
      lists_(&clients_->Lists()),
      sky_(new SkyPanel(place)),
      today_(new TodayPage(place)),
      commands_(new ClientCommands(place, *lists_, *this)),
      transits_(new TransitCommands(place, *pages_, *this)),
      reports_(new GroupExport(place, *lists_, *this)),
      search_(new SearchPage(place)),
      exchange_(new ExchangeCommands(place, *lists_, search_->Results(), *this)),
      firstRun_(new FirstRun(place, *commands_->AddClient, *exchange_->Import)),
      bar_(new QStatusBar),
      status_(*bar_, *commands_->UndoDelete) {
  MakeActions();
  MakeMenus();
  MakeBars();
  LayOut();
  Connect();
  ConnectFind();
  OfferExports();
  Start();
}

QAction* MainWindow::Command(const char* name, const QString& text, void (MainWindow::*run)()) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  if (HasKeys(kMainWindow, name)) {
    action->setShortcut(KeysOf(kMainWindow, name));
  }
  connect(action, &QAction::triggered, this, run);
  addAction(action);
  return action;
}

void MainWindow::MakeActions() {
  settings_ = Command("settings", tr("&Settings…"), &MainWindow::OpenSettings);
  cities_ = Command("cities", tr("&Cities…"), &MainWindow::OpenCities);
  matters_ = Command("matters", tr("House groups of &matters…"), &MainWindow::OpenMatters);
  refresh_ = Command("refreshSky", tr("&Refresh Sky"), &MainWindow::RefreshSky);
  fold_ = Command("foldSky", tr("&Fold Sky"), &MainWindow::FoldSky);
  filter_ = Command("filterClients", tr("&Filter Clients"), &MainWindow::FilterClients);
  find_ = Command("findAnyone", tr("Fi&nd Anyone"), &MainWindow::FindAnyone);
  advanced_ = Command("searchClients", tr("&Search…"), &MainWindow::SearchClients);
  guide_ = Command("guide", tr("Orvex+ &Help"), &MainWindow::ShowGuide);
  print_ = Command("printPage", tr("Print Pa&ge…"), &MainWindow::PrintPage);
  quit_ = Command("quit", tr("E&xit"), &MainWindow::Quit);
  Command("nextPane", tr("Next Pane"), &MainWindow::NextPane);
}

void MainWindow::MakeMenus() {
  auto* menus = new MainMenus(*this, rail_->MenuButton());
  QMenu* clients = menus->Add(tr("&Clients"));
  clients->addActions({commands_->AddClient, commands_->NewQuery, commands_->View,
                       commands_->EditClient, commands_->DeleteClient, commands_->UndoDelete,
                       commands_->MoveClient});
  clients->addSeparator();
  clients->addActions({commands_->InstantChart, filter_, find_, advanced_, print_});
  clients->addSeparator();
  clients->addActions({exchange_->Import, exchange_->Export});
  clients->addSeparator();
  clients->addAction(quit_);
  QMenu* groups = menus->Add(tr("&Groups"));
  groups->addActions({commands_->AddGroup, commands_->EditGroup, commands_->DeleteGroup});
  groups->addMenu(reports_->Menu());
  menus->Add(transits_->Menu());
  QMenu* tools = menus->Add(tr("&Tools"));
  tools->addActions({refresh_, fold_, cities_, matters_, settings_});
  QMenu* help = menus->Add(tr("&Help"));
  help->addAction(guide_);
  help->addAction(tr("Check for &Updates"), this, [this] { ShowBox<UpdateBox>(); });
  help->addAction(tr("&About Orvex+"), this, [this] { ShowBox<AboutBox>(); });
  menus->TakeKeys();
}

void MainWindow::Connect() {
  connect(lists_, &ClientLists::GroupsLoaded, search_, &SearchPage::LoadGroups);
  connect(pages_, &MainPages::Turned, this, &MainWindow::FollowPage);
  connect(sky_, &SkyPanel::Refreshed, this, [this] {
    status_.ShowSky(sky_->View().Captions);
    today_->ShowSky(sky_->View());
    transits_->Horas().FollowClock();
    if (today_->Birthdays().FollowDay()) {
      clients_->Groups().ShowBirthdays(today_->Birthdays().Table());
    }
  });
  connect(sky_, &SkyPanel::FoldedChanged, this, [this](bool folded) { status_.ShowDate(folded); });
  status_.ShowDate(sky_->IsFolded());
  connect(sky_, &SkyPanel::TodayWanted, this, [this] { pages_->Turn(MainPage::Today); });
  connect(firstRun_, &FirstRun::CityChanged, sky_, &SkyPanel::Refresh);
  connect(lists_, &ClientLists::CountChanged, this,
          [this](const QString& text) { status_.ShowCount(text); });
  connect(commands_, &ClientCommands::ClientsChanged, this, [this] {
    lists_->ShowCounts();
    ShowBirthdays();
    ShowClientCounts();
    search_->Reload();
  });
  connect(commands_, &ClientCommands::SettingsWanted, this, &MainWindow::OpenSettings);
  connect(exchange_, &ExchangeCommands::ClientsChanged, commands_, &ClientCommands::ClientsChanged);
  connect(exchange_, &ExchangeCommands::WritingChanged, sky_, &SkyPanel::Pause);
  const auto tell = [this](const QString& text) {
    constexpr int kShown = 8000;  // milliseconds
    bar_->showMessage(text, kShown);
  };
  connect(exchange_, &ExchangeCommands::Done, this, tell);
  connect(&transits_->Page(), &TransitGridPage::Done, this, tell);
  connect(&transits_->Page(), &TransitGridPage::TitleChanged, this, [this] { ShowPageTitle(); });
  connect(commands_, &ClientCommands::PageWanted, this,
          [this] { pages_->Turn(MainPage::Clients); });
  for (TableView* list : {&search_->Results(), &today_->Birthdays().List()}) {
    for (QAction* action : {commands_->View, commands_->Report, commands_->EditClient,
                            commands_->DeleteClient, commands_->MoveClient}) {
      list->AddMenuAction(action);
    }
    commands_->DeleteIn(*list, *commands_->DeleteClient);
  }
  connect(&today_->Birthdays().List(), &TableView::TagActivated, commands_->View,
          &QAction::trigger);
  clients_->Card().SetActions({commands_->View,
                               commands_->EditClient,
                               commands_->Report,
                               commands_->MoveClient,
                               {commands_->MoveClient, commands_->DeleteClient}});
  clients_->Groups().SetAddAction(commands_->AddGroup);
  connect(&clients_->Groups(), &GroupColumn::ClientWanted, commands_, &ClientCommands::ShowInGroup);
  connect(&clients_->Groups(), &GroupColumn::TodayWanted, this,
          [this] { pages_->Turn(MainPage::Today); });
}

void MainWindow::ConnectFind() {
  FindAnyoneBox* find = &top_->Find();
  connect(find, &FindAnyoneBox::OpenWanted, commands_, &ClientCommands::Open);
  connect(find, &FindAnyoneBox::EditWanted, commands_, &ClientCommands::Edit);
  connect(find, &FindAnyoneBox::ShowWanted, commands_, &ClientCommands::ShowInGroup);
  connect(find, &FindAnyoneBox::NewWanted, commands_, &ClientCommands::AddNamed);
  find->TakeKeysOf(lists_->ClientTable());
}

void MainWindow::OfferExports() {
  for (TableView* list : findChildren<TableView*>()) {
    if (!today_->Birthdays().isAncestorOf(list) && !transits_->Horas().isAncestorOf(list)) {
      list->RememberWidths(place_.Layout);
      OfferExport(place_, *list);
    }
  }
  lists_->ClientTable().SetExport([this](const core::Table& table) {
    ExportTable(place_, *this, table, Typed(lists_->GroupName()));
  });
}

void MainWindow::ShowPageTitle() {
  status_.ShowPage(pages_->Current() == MainPage::Transits ? transits_->Page().Title() : QString());
}

// A command acts on the list of the page in sight and on none behind it; the page has the keys.
void MainWindow::FollowPage() {
  ShowPageTitle();
  switch (pages_->Current()) {
    case MainPage::Clients:
      commands_->ActOnLists();
      lists_->ClientTable().setFocus();
      return;
    case MainPage::Search:
      commands_->ActOn(&search_->Results());
      search_->FocusText();
      return;
    case MainPage::Transits:
      transits_->Page().FocusMonth();
      break;
    case MainPage::Horas:
      transits_->Horas().FocusDate();
      break;
    case MainPage::Today:
      commands_->ActOn(&today_->Birthdays().List());
      today_->setFocus();
      return;
  }
  commands_->ActOnNothing();
}

void MainWindow::Start() {
  ShowBirthdays();
  sky_->Refresh();
  lists_->LoadGroups();
  ShowClientCounts();
  sky_->StartTimer();
  lists_->ClientTable().setFocus();
}

// A practice without clients shows the first steps in the place of its empty lists.
void MainWindow::ShowClientCounts() {
  status_.ShowTotal(Shown(practice::TotalClients(place_.Session)));
  const bool anyone = practice::HasClients(place_.Session);
  clientsPage_->setCurrentIndex(anyone || lists_->Group() == 0 ? 0 : 1);
}

void MainWindow::ShowBirthdays() {
  today_->Birthdays().Reload();
  clients_->Groups().ShowBirthdays(today_->Birthdays().Table());
}

void MainWindow::FindAnyone() {
  if (top_->Find().hasFocus()) {
    pages_->Turn(MainPage::Search);
  } else {
    top_->Find().Begin();
  }
}

void MainWindow::FilterClients() {
  pages_->Turn(MainPage::Clients);
  lists_->FocusFilter();
}

void MainWindow::SearchClients() { pages_->Turn(MainPage::Search); }
void MainWindow::RefreshSky() { sky_->Refresh(); }
void MainWindow::FoldSky() { sky_->Fold(); }
void MainWindow::ShowGuide() { OpenGuide(place_); }

void MainWindow::NextPane() {
  FocusNextPane(*this, {&top_->Find(), &lists_->GroupTable(), &lists_->ClientTable(),
                        &clients_->Card(), &search_->Results(), &transits_->Page(),
                        &transits_->Horas(), today_, &sky_->Column().Planets()});
}

void MainWindow::PrintPage() {
  const QString title = pages_->ActionOf(pages_->Current())->text().remove('&');
  PrintWithPreview(place_, *this,
                   PrintoutOf(*pages_->currentWidget(), {title, {}, {}}, place_.Session));
}

MainWindow::Place MainWindow::InSight() const {
  return {pages_->currentIndex(), lists_->Group(), lists_->Client()};
}

void MainWindow::Show(const Place& place) {
  lists_->ShowGroup(place.Group, place.Client);
  pages_->Turn(static_cast<MainPage>(place.Page));
}

void MainWindow::OpenSettings() {
  SettingsDialog dialog(place_, this);
  if (dialog.exec() == QDialog::Accepted) {
    TakeLook(core::LookOf(place_.Session));
    sky_->Refresh();
    firstRun_->ShowCity();
    lists_->ReloadClients();
    transits_->Page().Refresh();
  }
}

void MainWindow::OpenCities() {
  CitiesDialog dialog(place_, this);
  dialog.exec();
}

void MainWindow::OpenMatters() {
  MattersDialog dialog(place_, 0, this);
  dialog.exec();
}

template <typename Box>
void MainWindow::ShowBox() {
  Box box(this);
  box.exec();
}

// Clients and remedies are changed in a horoscope's window too; coming back from there shows it.
void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    lists_->FollowStore();
    clients_->Card().Reload();
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  place_.Layout.KeepWindow(*this);
  event->accept();
  QApplication::quit();
}

}  // namespace orvex::ui
