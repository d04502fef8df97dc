#include "ui/main/transit_commands.h"

#include <QAction>
#include <QMenu>
#include <QTabWidget>

#include "ui/transit/hora_view.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {

TransitCommands::TransitCommands(Workplace& place, QTabWidget& pages, QWidget& window)
    : QObject(&window),
      place_(place),
      pages_(pages),
      window_(window),
      page_(new TransitGridPage(place)),
      menu_(new QMenu(tr("T&ransit"), &window)) {
  Add("transitGrid", tr("&Monthly Grid"), tr("Ctrl+T"), &TransitCommands::ShowGrid);
  Add("findTransit", tr("&Find Transit…"), tr("Ctrl+Shift+F"), &TransitCommands::FindTransit);
  Add("hora", tr("&Hora…"), tr("Ctrl+H"), &TransitCommands::OpenHora);
}

void TransitCommands::Add(const char* name, const QString& text, const QKeySequence& keys,
                          void (TransitCommands::*run)()) {
  QAction* action = menu_->addAction(text);
  action->setObjectName(name);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, run);
}

void TransitCommands::ShowGrid() { pages_.setCurrentWidget(page_); }

void TransitCommands::FindTransit() {
  ShowGrid();
  page_->FindTransit();
}

// One view at a time; a second call brings it to the front.
void TransitCommands::OpenHora() {
  auto* view = window_.findChild<HoraView*>();
  if (view == nullptr) {
    view = new HoraView(place_, &window_);
  }
  view->show();
  view->raise();
  view->activateWindow();
}

}  // namespace orvex::ui
