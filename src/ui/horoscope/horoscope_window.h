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

  // Opens the sheet of a row of the planet table.
  void ShowPlanetSheet(std::size_t row);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut();
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
  HeadPane* head_;
  PageStack* pages_;
  BirthPanel* birth_;
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
