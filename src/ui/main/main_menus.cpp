#include "ui/main/main_menus.h"

#include <QShortcut>
#include <QToolButton>

#include "ui/base/keys.h"

namespace orvex::ui {

MainMenus::MainMenus(QWidget& window, QToolButton& button)
    : QObject(&window), window_(window), button_(button), all_(new QMenu(&window)) {
  all_->setObjectName("mainMenu");
  const QKeySequence keys = KeysOf(kMainWindow, "mainMenu");
  button_.setAccessibleName(tr("Menus"));
  button_.setToolTip(WithKeys(tr("Menus"), keys));
  connect(&button_, &QToolButton::clicked, this, [this] { DropDown(nullptr); });
  connect(new QShortcut(keys, &window_), &QShortcut::activated, this,
          [this] { DropDown(nullptr); });
}

QMenu* MainMenus::Add(const QString& title) {
  auto* menu = new QMenu(title, all_);
  Add(menu);
  return menu;
}

void MainMenus::Add(QMenu* menu) {
  all_->addMenu(menu);
  const QKeySequence letter = QKeySequence::mnemonic(menu->title());
  connect(new QShortcut(letter, &window_), &QShortcut::activated, this,
          [this, menu] { DropDown(menu); });
}

void MainMenus::TakeKeys() {
  for (const QAction* menu : all_->actions()) {
    window_.addActions(menu->menu()->actions());
  }
}

// All menus under the button; with one of them opened beside.
void MainMenus::DropDown(QMenu* menu) {
  all_->popup(button_.mapToGlobal(QPoint(0, button_.height())));
  if (menu != nullptr) {
    all_->setActiveAction(menu->menuAction());
  }
}

}  // namespace orvex::ui
