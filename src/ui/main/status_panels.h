// What the status bar of the main window tells: counts of clients, and the sky of now.
#pragma once

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

class QAction;
class QFrame;
class QStatusBar;

namespace orvex::ui {

class ElidedLabel;

class StatusPanels final {
 public:
  // Fills a bar; `undo` stands in it for as long as it is in sight.
  StatusPanels(QStatusBar& bar, QAction& undo);

  void ShowCount(const QString& text);
  // What the page in sight tells in the place of the counts of clients; "" shows these again.
  void ShowPage(const QString& text);
  // The clients of the whole practice.
  void ShowTotal(const QString& text);
  void ShowSky(const panchang::SkyCaptions& captions);
  // The date stands here while the sky, which tells it too, is folded.
  void ShowDate(bool shown);

 private:
  static void ShowWhole(ElidedLabel& panel, const QString& text);

  ElidedLabel* page_;
  ElidedLabel* count_;
  ElidedLabel* total_;
  ElidedLabel* ascendant_;
  ElidedLabel* nodes_;
  QFrame* swatch_;  // in the colour of the disha shool
  ElidedLabel* disha_;
  ElidedLabel* date_;
};

}  // namespace orvex::ui
