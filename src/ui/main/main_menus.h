// The menus of the main window, behind one button: it, F10, or Alt with the letter of a menu opens
// them.
#pragma once

#include <QMenu>

class QToolButton;

namespace orvex::ui {

class MainMenus final : public QObject {
  Q_OBJECT

 public:
  // The menus belong to the window of the button.
  MainMenus(QWidget& window, QToolButton& button);

  // Another menu, "&Tools". Alt and its letter open it from now on.
  QMenu* Add(const QString& title);
  void Add(QMenu* menu);

  // To be called when all menus are filled: their keys work in the whole window from now on.
  void TakeKeys();

 private:
  void DropDown(QMenu* menu);

  QWidget& window_;
  QToolButton& button_;
  QMenu* all_;
};

}  // namespace orvex::ui
