#include "ui/main/transit_commands.h"

#include <QAction>
#include <QMenu>

#include "ui/base/keys.h"
#include "ui/main/main_pages.h"
#include "ui/transit/hora_view.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {

TransitCommands::TransitCommands(Workplace& place, MainPages& pages, QWidget& window)
    : QObject(&window),
      pages_(pages),
      page_(new TransitGridPage(place)),
      horas_(new HoraView(place)),
      menu_(new QMenu(tr("T&ransit"), &window)) {
  Add("transitGrid", tr("&Monthly Grid"), &TransitCommands::ShowGrid);
  Add("findTransit", tr("&Find Transit…"), &TransitCommands::FindTransit);
  Add("hora", tr("&Hora"), &TransitCommands::ShowHoras);
}

void TransitCommands::Add(const char* name, const QString& text, void (TransitCommands::*run)()) {
  QAction* action = menu_->addAction(text);
  action->setObjectName(name);
  action->setShortcut(KeysOf(kMainWindow, name));
  connect(action, &QAction::triggered, this, run);
}

void TransitCommands::ShowGrid() { pages_.Turn(MainPage::Transits); }

void TransitCommands::FindTransit() {
  ShowGrid();
  page_->FindTransit();
}

void TransitCommands::ShowHoras() { pages_.Turn(MainPage::Horas); }

}  // namespace orvex::ui
