// The periods as bars, with what they are printed and saved by.
#pragma once

#include "ui/graphs/dasha_timeline_view.h"
#include "ui/horoscope/horoscope_page.h"

namespace orvex::ui {

class TimelinePage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit TimelinePage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QAction* MakeRunningAction();
  void ShowRunning();

  DashaTimelineView* view_;
};

}  // namespace orvex::ui
