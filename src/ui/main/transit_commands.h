// What the main window offers of the transits: the page of the month, the search and the horas.
#pragma once

#include <QObject>

#include "ui/base/workplace.h"

class QAction;
class QMenu;
class QTabWidget;

namespace orvex::ui {

class TransitGridPage;

class TransitCommands final : public QObject {
  Q_OBJECT

 public:
  TransitCommands(Workplace& place, QTabWidget& pages, QWidget& window);

  TransitGridPage& Page() { return *page_; }
  QMenu* Menu() { return menu_; }

 private:
  void Add(const char* name, const QString& text, const QKeySequence& keys,
           void (TransitCommands::*run)());
  void ShowGrid();
  void FindTransit();
  void OpenHora();

  Workplace& place_;
  QTabWidget& pages_;
  QWidget& window_;
  TransitGridPage* page_;
  QMenu* menu_;
};

}  // namespace orvex::ui
