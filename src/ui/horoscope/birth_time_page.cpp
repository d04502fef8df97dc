#include "ui/horoscope/birth_time_page.h"

#include <QHBoxLayout>
#include <QSplitter>
#include <utility>

#include "ui/base/theme.h"
#include "ui/horoscope/birth_spans.h"
#include "ui/horoscope/birth_steps.h"
#include "ui/horoscope/life_events_panel.h"

namespace orvex::ui {

namespace {

// The usual heights of the two parts; the lower one is that of twelve cusps.
constexpr int kTrialHeight = 216;
constexpr int kStepsHeight = 404;

// What is typed stands at the left, what it gives at the right.
int SideWidth() {
  constexpr int kSide = 300;
  return kSide * Theme::TextSize() / 100;
}

}  // namespace

BirthTimePage::BirthTimePage(HoroscopeDocument& document)
    : HoroscopePage(document),
      events_(new LifeEventsPanel(document.Place(), document.Model().ClientId)),
      spans_(new BirthSpans(document)),
      steps_(new BirthSteps(document, SideWidth())) {
  events_->setFixedWidth(SideWidth());
  auto* trial = new QWidget;
  auto* beside = new QHBoxLayout(trial);
  beside->setContentsMargins(0, 0, 0, 0);
  beside->setSpacing(space::kM);
  beside->addWidget(events_);
  beside->addWidget(spans_, 1);
  auto* halves = new QSplitter(Qt::Vertical);
  halves->setObjectName("birthTimeHalves");
  halves->setChildrenCollapsible(false);
  halves->addWidget(trial);
  halves->addWidget(steps_);
  halves->setStretchFactor(0, 1);
  halves->setStretchFactor(1, 1);
  halves->setSizes({kTrialHeight, kStepsHeight});
  document.Place().Layout.Remember(*halves);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM, space::kXs, space::kM, space::kXs);
  layout->addWidget(halves);
  connect(events_, &LifeEventsPanel::EventsChanged, spans_, &BirthSpans::Judge);
}

// The birth is the same as long as the window is open; what is tried here stays.
void BirthTimePage::ShowModel() {
  if (!std::exchange(judged_, true)) {
    events_->Reload();
    spans_->Judge();
  }
  steps_->ShowModel();
}

}  // namespace orvex::ui
