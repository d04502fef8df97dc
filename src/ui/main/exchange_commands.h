// Births in and out of files, as actions of menus, and files dropped onto a window.
#pragma once

#include <QAction>
#include <QObject>
#include <filesystem>
#include <vector>

#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

class ClientLists;
class TableView;

class ExchangeCommands final : public QObject {
  Q_OBJECT

 public:
  // `found` is the list of what a search has found.
  ExchangeCommands(Workplace& place, ClientLists& lists, TableView& found, QWidget& window);

  QAction* Import;
  QAction* Export;

 signals:
  // Clients were added.
  void ClientsChanged();
  // The store is written in one batch, in which no other may be begun; until it is told again.
  void WritingChanged(bool writing);
  // What was done, for the status line.
  void Done(const QString& text);

 private:
  QAction* Make(const char* name, const QString& text, void (ExchangeCommands::*run)());
  void RunImport() { ImportFrom({}); }
  void ImportFrom(const std::vector<std::filesystem::path>& paths);
  void RunExport();

  Workplace& place_;
  ClientLists& lists_;
  TableView& found_;
  QWidget& window_;
};

}  // namespace orvex::ui
