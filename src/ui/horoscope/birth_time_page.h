// The page "Birth time": the events of the life, the birth times that they are tried with, and the
// chart moved step by step.
#pragma once

#include "ui/horoscope/horoscope_page.h"

namespace orvex::ui {

class BirthSpans;
class BirthSteps;
class LifeEventsPanel;

class BirthTimePage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit BirthTimePage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  LifeEventsPanel* events_;
  BirthSpans* spans_;
  BirthSteps* steps_;
  bool judged_ = false;
};

}  // namespace orvex::ui
