// The window of one client's horoscope.
#pragma once

#include <QMainWindow>
#include <memory>

#include "ui/horoscope/horoscope_document.h"

class QLabel;
class QMenu;
class QToolBar;

namespace orvex::ui {

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

  // Turns to the page of that name, such as "dasha".
  void Turn(const QString& page);

  // Opens the sheet of a row of the planet table.
  void ShowPlanetSheet(std::size_t row);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void LayOut();
  void Connect();
  QAction* AddAction(const QString& text, const QString& name, const QKeySequence& keys);
  void AddMenu(const QString& text, QMenu* menu, const QKeySequence& keys);
  void MakeActions();
  QMenu* MakeStyleMenu();
  QMenu* MakeRotationMenu();
  QMenu* MakeExportMenu();
  void NextStyle();
  void ShowModel();
  void ShowDivisions();
  void Export(report::ReportDetail detail, bool asPdf);
  std::filesystem::path WriteReport(report::ReportDetail detail, bool asPdf);
  void Unregister();

  HoroscopeDocument document_;
  QToolBar* tools_;
  HeadPane* head_;
  PageStack* pages_;
  QLabel* status_;
  QAction* style_ = nullptr;
  QAction* rectify_ = nullptr;
};

// The window of a client in front of the others: the open one, else a new one, which deletes itself
// when it is closed. Null where there is no such client.
HoroscopeWindow* OpenHoroscope(Workplace& place, std::int32_t clientId);

}  // namespace orvex::ui
