// What the main window offers of the transits: the pages of the month and of the horas, the search.
#pragma once

#include <QObject>

#include "ui/base/workplace.h"

class QAction;
class QMenu;

namespace orvex::ui {

class HoraView;
class MainPages;
class TransitGridPage;

class TransitCommands final : public QObject {
  Q_OBJECT

 public:
  TransitCommands(Workplace& place, MainPages& pages, QWidget& window);

  TransitGridPage& Page() { return *page_; }
  HoraView& Horas() { return *horas_; }
  QMenu* Menu() { return menu_; }

 private:
  void Add(const char* name, const QString& text, void (TransitCommands::*run)());
  void ShowGrid();
  void FindTransit();
  void ShowHoras();

  MainPages& pages_;
  TransitGridPage* page_;
  HoraView* horas_;
  QMenu* menu_;
};

}  // namespace orvex::ui
