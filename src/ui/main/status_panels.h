// What the status bar of the main window tells: counts of clients, and the sky of now.
#pragma once

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

class QAction;
class QLabel;
class QStatusBar;

namespace orvex::ui {

class StatusPanels final {
 public:
  // Fills a bar; `undo` stands in it for as long as it is in sight.
  StatusPanels(QStatusBar& bar, QAction& undo);

  void ShowCount(const QString& text);
  // The clients of the whole practice.
  void ShowTotal(const QString& text);
  void ShowSky(const panchang::SkyCaptions& captions);

 private:
  QLabel* count_;
  QLabel* total_;
  QLabel* ascendant_;
  QLabel* nodes_;
  QLabel* disha_;
  QLabel* date_;
};

}  // namespace orvex::ui
