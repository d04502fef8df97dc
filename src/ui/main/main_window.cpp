#include "ui/main/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <utility>

#include "practice/client_list.h"
#include "ui/base/export_table.h"
#include "ui/base/guide.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/dialogs/about_box.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/settings_dialog.h"
#include "ui/main/birthday_list.h"
#include "ui/main/client_commands.h"
#include "ui/main/client_lists.h"
#include "ui/main/first_run.h"
#include "ui/main/search_page.h"
#include "ui/main/sky_panel.h"
#include "ui/main/transit_commands.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {

namespace {

QAction* Command(QWidget& window, const char* name, const QString& text, const QKeySequence& keys) {
  auto* action = new QAction(text, &window);
  action->setObjectName(name);
  action->setShortcut(keys);
  return action;
}

}  // namespace

MainWindow::MainWindow(Workplace& place)
    : place_(place),
      pages_(new QTabWidget),
      clientsPage_(new QStackedWidget),
      lists_(new ClientLists(place)),
      sky_(new SkyPanel(place)),
      commands_(new ClientCommands(place, *lists_, *this)),
      transits_(new TransitCommands(place, *pages_, *this)),
      search_(new SearchPage(place)),
      halves_(new QSplitter(Qt::Horizontal)),
      birthdays_(new BirthdayList(place)),
      status_(*statusBar(), *commands_->UndoDelete) {
  MakeActions();
  LayOut();
  Connect();
  Start();
}

void MainWindow::MakeActions() {
  settings_ = Command(*this, "settings", tr("&Settings…"), tr("Ctrl+,"));
  cities_ = Command(*this, "cities", tr("&Cities…"), {});
  refresh_ = Command(*this, "refreshSky", tr("&Refresh Sky"), tr("F5"));
  filter_ = Command(*this, "filterClients", tr("&Filter Clients"), QKeySequence::Find);
  find_ = Command(*this, "searchClients", tr("&Search…"), tr("Ctrl+K"));
  quit_ = Command(*this, "quit", tr("E&xit"), tr("Ctrl+Q"));
  MakeMenus();
  MakeToolBar();
}

void MainWindow::MakeMenus() {
  QMenu* clients = menuBar()->addMenu(tr("&Clients"));
  clients->addActions({commands_->AddClient, commands_->View, commands_->EditClient,
                       commands_->DeleteClient, commands_->UndoDelete, commands_->MoveClient});
  clients->addSeparator();
  clients->addActions({commands_->InstantChart, filter_, find_});
  clients->addSeparator();
  clients->addAction(quit_);
  QMenu* groups = menuBar()->addMenu(tr("&Groups"));
  groups->addActions({commands_->AddGroup, commands_->EditGroup, commands_->DeleteGroup});
  menuBar()->addMenu(transits_->Menu());
  QMenu* tools = menuBar()->addMenu(tr("&Tools"));
  tools->addActions({refresh_, cities_, settings_});
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->addAction(tr("Orvex+ &Help"), QKeySequence::HelpContents, this,
                  [this] { OpenGuide(place_); });
  help->addAction(tr("Check for &Updates"), this, [this] { ShowBox<UpdateBox>(); });
  help->addAction(tr("&About Orvex+"), this, [this] { ShowBox<AboutBox>(); });
}

void MainWindow::MakeToolBar() {
  QToolBar* tools = addToolBar(tr("Tools"));
  tools->setObjectName("toolBar");
  tools->setMovable(false);
  tools->addActions(
      {commands_->AddClient, commands_->View, commands_->EditClient, commands_->DeleteClient});
  tools->addSeparator();
  tools->addActions({commands_->AddGroup, commands_->EditGroup, commands_->DeleteGroup});
  tools->addSeparator();
  tools->addActions({commands_->InstantChart, settings_});
}

void MainWindow::LayOut() {
  setObjectName("mainWindow");
  setWindowTitle("Orvex+");
  pages_->setObjectName("pages");
  pages_->setDocumentMode(true);
  pages_->tabBar()->setDrawBase(false);
  AddPage(BuildClientsPage(), tr("Clients"));
  AddPage(search_, tr("Search"));
  AddPage(&transits_->Page(), tr("Transit"));
  halves_->setObjectName("mainHalves");
  halves_->addWidget(pages_);
  halves_->addWidget(sky_);
  halves_->setStretchFactor(0, 1);
  halves_->setStretchFactor(1, 1);
  auto* middle = new QWidget;
  auto* layout = new QVBoxLayout(middle);
  layout->addWidget(halves_);
  setCentralWidget(middle);
  if (!place_.Layout.RestoreWindow(*this)) {
    resize(1366, 720);
  }
  halves_->setSizes({84 * kGrid, 82 * kGrid});
  place_.Layout.Remember(*halves_);
}

QWidget* MainWindow::BuildClientsPage() {
  firstRun_ = new FirstRun(place_, *commands_->AddClient);
  auto* rows = new QSplitter(Qt::Vertical);
  rows->setObjectName("clientsAndBirthdays");
  rows->addWidget(lists_);
  rows->addWidget(birthdays_);
  rows->setStretchFactor(0, 5);
  rows->setStretchFactor(1, 1);
  place_.Layout.Remember(*rows);
  clientsPage_->addWidget(rows);
  clientsPage_->addWidget(firstRun_);
  return clientsPage_;
}

void MainWindow::Connect() {
  connect(settings_, &QAction::triggered, this, [this] { OpenSettings(); });
  connect(cities_, &QAction::triggered, this, [this] { OpenCities(); });
  connect(refresh_, &QAction::triggered, sky_, &SkyPanel::Refresh);
  connect(filter_, &QAction::triggered, this, [this] {
    pages_->setCurrentWidget(clientsPage_);
    lists_->FocusFilter();
  });
  connect(find_, &QAction::triggered, this, [this] {
    pages_->setCurrentWidget(search_);
    search_->FocusText();
  });
  connect(lists_, &ClientLists::GroupsLoaded, search_, &SearchPage::LoadGroups);
  connect(quit_, &QAction::triggered, this, &QWidget::close);
  connect(pages_, &QTabWidget::currentChanged, this, &MainWindow::MakeRoom);
  connect(pages_, &QTabWidget::currentChanged, this, &MainWindow::FollowPage);
  connect(sky_, &SkyPanel::Refreshed, this, [this] {
    status_.ShowSky(sky_->View().Captions);
    birthdays_->FollowDay();
  });
  connect(firstRun_, &FirstRun::CityChanged, sky_, &SkyPanel::Refresh);
  connect(lists_, &ClientLists::CountChanged, this,
          [this](const QString& text) { status_.ShowCount(text); });
  connect(commands_, &ClientCommands::ClientsChanged, this, [this] {
    birthdays_->Reload();
    ShowClientCounts();
    search_->Reload();
  });
  connect(commands_, &ClientCommands::SettingsWanted, this, [this] { OpenSettings(); });
  connect(commands_, &ClientCommands::PageWanted, this,
          [this] { pages_->setCurrentWidget(clientsPage_); });
  for (QAction* action :
       {commands_->View, commands_->EditClient, commands_->DeleteClient, commands_->MoveClient}) {
    search_->Results().AddMenuAction(action);
  }
  for (TableView* list : findChildren<TableView*>()) {
    if (!birthdays_->isAncestorOf(list)) {
      list->RememberWidths(place_.Layout);
      OfferExport(place_, *list);
    }
  }
  lists_->ClientTable().SetExport([this](const core::Table& table) {
    ExportTable(place_, *this, table, Typed(lists_->GroupName()));
  });
}

// A command acts on the list of the page in sight and on none behind it.
void MainWindow::FollowPage() {
  if (pages_->currentWidget() == clientsPage_) {
    commands_->ActOnLists();
  } else if (pages_->currentWidget() == search_) {
    commands_->ActOn(&search_->Results());
  } else {
    commands_->ActOnNothing();
  }
}

// A page takes the room that it asks for; the clients get back what the user gave them.
void MainWindow::MakeRoom() {
  const QList<int> sizes = halves_->sizes();
  if (pages_->currentIndex() == 0) {
    halves_->setSizes(givenSizes_.isEmpty() ? sizes : std::exchange(givenSizes_, {}));
    return;
  }
  if (givenSizes_.isEmpty()) {
    givenSizes_ = sizes;
  }
  const int wanted = pages_->currentWidget()->sizeHint().width() + 2 * kGrid;
  if (wanted > sizes.front()) {
    halves_->setSizes({wanted, sizes.front() + sizes.back() - wanted});
  }
}

void MainWindow::Start() {
  birthdays_->Reload();
  sky_->Refresh();
  lists_->LoadGroups();
  ShowClientCounts();
  sky_->StartTimer();
  lists_->ClientTable().setFocus();
}

void MainWindow::AddPage(QWidget* page, const QString& title) { pages_->addTab(page, title); }

// A practice without clients shows the first steps in the place of its empty lists.
void MainWindow::ShowClientCounts() {
  status_.ShowTotal(Shown(practice::TotalClients(place_.Session)));
  const bool anyone = practice::HasClients(place_.Session);
  clientsPage_->setCurrentIndex(anyone || lists_->Group() == 0 ? 0 : 1);
}

void MainWindow::OpenSettings() {
  SettingsDialog dialog(place_, this);
  if (dialog.exec() == QDialog::Accepted) {
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

template <typename Box>
void MainWindow::ShowBox() {
  Box box(this);
  box.exec();
}

// Remedies are written in a horoscope's window; coming back from there shows them.
void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    lists_->ReloadRemedies();
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  place_.Layout.KeepWindow(*this);
  event->accept();
  QApplication::quit();
}

}  // namespace orvex::ui
