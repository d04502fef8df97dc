#include "ui/horoscope/timeline_page.h"

#include <QAction>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/base/shown_page.h"
#include "ui/horoscope/field_label.h"

namespace orvex::ui {

TimelinePage::TimelinePage(HoroscopeDocument& document)
    : HoroscopePage(document), view_(new DashaTimelineView(document.Place())) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(view_, 1);
  auto* help =
      new FieldLabel(tr("A click opens a period. Arrow keys: ← → along, ↑ ↓ between the levels."));
  LeaveUnprinted(*help);
  QHBoxLayout* foot =
      GraphButtons(*this, {MakeRunningAction(), view_->PrintAction(), view_->SaveAction()});
  foot->insertWidget(0, help);
  layout->addLayout(foot);
  connect(view_, &DashaTimelineView::PeriodChosen, this,
          [this](std::size_t level, std::size_t row) {
            Document().SelectPeriod(static_cast<chart::DashaLevel>(level), row);
          });
}

QAction* TimelinePage::MakeRunningAction() {
  auto* running = new QAction(tr("Running pe&riods"), this);
  running->setObjectName("runningPeriods");
  running->setShortcut(Qt::CTRL | Qt::Key_J);
  running->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(running, &QAction::triggered, this, &TimelinePage::ShowRunning);
  return running;
}

// The lists below a dasha open at what runs today.
void TimelinePage::ShowRunning() {
  const TimelinePicture& picture = view_->Picture();
  if (const auto row = PeriodHolding(picture.Levels.front(), picture.Today)) {
    Document().SelectPeriod(chart::DashaLevel::Dasha, *row);
  }
}

void TimelinePage::ShowModel() {
  view_->ShowPicture(PictureOfDashas(Model(), Document().Place().Session.Time.Today()));
}

}  // namespace orvex::ui
