// Where the parts of the main window stand.
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <array>

#include "ui/base/job_line.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"
#include "ui/base/window_room.h"
#include "ui/main/client_commands.h"
#include "ui/main/clients_page.h"
#include "ui/main/first_run.h"
#include "ui/main/group_export.h"
#include "ui/main/main_pages.h"
#include "ui/main/main_window.h"
#include "ui/main/rail.h"
#include "ui/main/search_page.h"
#include "ui/main/sky_panel.h"
#include "ui/main/today_page.h"
#include "ui/main/top_bar.h"
#include "ui/main/transit_commands.h"
#include "ui/transit/hora_view.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {

namespace {

constexpr int kUsualWidth = 1366;
constexpr int kUsualHeight = 720;
// Pixels of width at the usual text size.
constexpr int kRoomForWords = 1100;
constexpr int kRoomForSky = 1180;

constexpr std::array<const char*, 5> kPageIcons = {"clients", "search", "transits", "horas",
                                                   "today"};

}  // namespace

void MainWindow::MakeBars() {
  for (std::size_t page = 0; page < kMainPages; ++page) {
    QAction* action = pages_->ActionOf(static_cast<MainPage>(page));
    addAction(action);
    rail_->Add(action, action->text(), kPageIcons.at(page));
  }
  rail_->AddAtFoot(settings_, tr("Settings"), "settings");
  rail_->AddAtFoot(guide_, tr("Guide"), "guide");
  top_->AddButton(commands_->AddClient, tr("New birth"), "new-birth")->setDefault(true);
  top_->AddButton(commands_->NewQuery, tr("New query"), "new-query");
  top_->AddButton(commands_->InstantChart, tr("Chart of now"), "chart-now");
}

void MainWindow::LayOut() {
  setObjectName("mainWindow");
  setWindowTitle("Orvex+");
  setContextMenuPolicy(Qt::NoContextMenu);
  AddPages();
  bar_->setSizeGripEnabled(false);
  bar_->setContentsMargins(space::kS, 0, space::kM, 0);
  bar_->addWidget(reports_->Line());
  auto* body = new QHBoxLayout;
  body->setSpacing(0);
  body->addWidget(pages_, 1);
  body->addWidget(sky_);
  auto* right = new QVBoxLayout;
  right->setSpacing(0);
  right->addWidget(top_);
  right->addLayout(body, 1);
  right->addWidget(bar_);
  auto* middle = new QWidget;
  middle->setMinimumSize(1, 1);
  auto* layout = new QHBoxLayout(middle);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(rail_);
  layout->addLayout(right, 1);
  setCentralWidget(middle);
  setMinimumSize(window::kLeastWidth, window::kLeastHeight);
  if (!place_.Layout.RestoreWindow(*this)) {
    resize(kUsualWidth, kUsualHeight);
  }
  KeepOnScreen(*this);
}

void MainWindow::AddPages() {
  clientsPage_->addWidget(clients_);
  clientsPage_->addWidget(firstRun_);
  pages_->Add(MainPage::Clients, clientsPage_);
  pages_->Add(MainPage::Search, search_);
  pages_->Add(MainPage::Transits, &transits_->Page());
  pages_->Add(MainPage::Horas, &transits_->Horas());
  pages_->Add(MainPage::Today, today_);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  top_->SetNarrow(width() < Scaled(kRoomForWords));
  sky_->SetNarrow(width() < Scaled(kRoomForSky));
}

}  // namespace orvex::ui
