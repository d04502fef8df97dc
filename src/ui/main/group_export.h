// The reports of all clients of the chosen group, written beside the windows.
#pragma once

#include <QObject>

#include "ui/horoscope/report_export.h"

class QMenu;
class QWidget;

namespace orvex::ui {

class ClientLists;
class ExportRunner;
class JobLine;
struct Workplace;

class GroupExport final : public QObject {
  Q_OBJECT

 public:
  GroupExport(Workplace& place, ClientLists& lists, QWidget& window);

  // "Export reports" with the forms and depths; it rests while an export runs and where the group
  // holds no client.
  QMenu* Menu() { return menu_; }

  // For the status line of the window.
  JobLine* Line();

 private:
  void FillMenu();
  void Follow();
  void Export(const ReportChoice& choice);

  Workplace& place_;
  ClientLists& lists_;
  QMenu* menu_;
  ExportRunner* exports_;
};

}  // namespace orvex::ui
