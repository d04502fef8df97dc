// The window of one client's horoscope.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "report/report_tables.h"
#include "ui/horoscope/horoscope_document.h"

class QMenu;
class QTimer;

namespace orvex::ui {

class BirthPanel;
class ClientDialog;
class ElidedLabel;
class ExportRunner;
class HeadPane;
class PageStack;
class PlanetSheetPanel;

class HoroscopeWindow final : public QMainWindow {
  Q_OBJECT

 public:
  HoroscopeWindow(Workplace& place, horoscope::OpenedHoroscope opened);
  HoroscopeWindow(const HoroscopeWindow&) = delete;
  HoroscopeWindow& operator=(const HoroscopeWindow&) = delete;
  ~HoroscopeWindow() override;

  std::int32_t ClientId() const { return document_.Model().ClientId; }

  // Whether it is that of a query.
  bool IsQuery() const { return document_.Model().Horary; }

  // The planet that is marked everywhere, by its code; "" for none.
  const QString& ChosenPlanet() const { return document_.ChosenPlanet(); }

  // Turns to the page of that name, such as "dasha".
  void Turn(const QString& page);

  // Turns to the page "Matter" with the keys in its first field.
  void JudgeMatter();

  // Shows the sheet of a row of the planet table: at the side where the window is wide, else in a
  // dialog.
  void ShowPlanetSheet(std::size_t row);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeContents();
  void MakeContentsAnew();
  void LayOut();
  void FollowWidth();
  bool HasRoomForSheet() const;
  void Connect();
  QAction* AddAction(const QString& text, const char* name, const char* icon = nullptr);
  void MakeHeadActions();
  void MakeMoreActions();
  QMenu* MakeStyleMenu();
  QMenu* MakeRotationMenu();
  QMenu* MakePrintMenu();
  QMenu* MakeExportMenu();
  QMenu* MakeWindowsMenu();
  void NextStyle();
  void ShowModel();
  void Tell(const QString& words);
  void ShowDivisions();
  void ShowBirthPanel(bool shown);
  void PrintPage();
  void PrintSheet();
  void EditClient();
  // Closes the window over the client's dialog, which `prepare` may fill, and opens it again.
  void EditClientWith(const std::function<void(ClientDialog&)>& prepare);
  void GoToClient(int by);
  void Export(report::ReportDetail detail, bool asPdf);
  void Unregister();

  HoroscopeDocument document_;
  std::vector<QAction*> headActions_;
  HeadPane* head_ = nullptr;
  PageStack* pages_ = nullptr;
  BirthPanel* birth_ = nullptr;
  PlanetSheetPanel* sheet_ = nullptr;
  ElidedLabel* status_;
  QTimer* told_;
  ExportRunner* exports_;
  QMenu* more_ = nullptr;
  QMenu* styleMenu_ = nullptr;
  QMenu* rotationMenu_ = nullptr;
  QAction* style_ = nullptr;
  QAction* birthPanel_ = nullptr;
};

// The window of a client in front of the others: the open one, else a new one, which deletes itself
// when it is closed. Null where there is no such client.
HoroscopeWindow* OpenHoroscope(Workplace& place, std::int32_t clientId);

}  // namespace orvex::ui
