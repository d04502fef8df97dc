#include "ui/horoscope/trigger_panel.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

#include "exact/crossings_table.h"
#include "judgement/judgement_calendar.h"
#include "judgement/moment_of_judgement.h"
#include "ui/base/calendar_saving.h"
#include "ui/base/icon.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr qint64 kBeat = 25;  // milliseconds of work before events are let in
constexpr int kWholeBar = 1000;
constexpr int kBarWidth = 90;

const std::vector<ColumnPlan> kColumns = {
    {"Body", CellKind::Text, 60, 0},       {"From", CellKind::Text, 112, 0},
    {"Until", CellKind::Text, 112, 1},     {"Sign Lord", CellKind::Chips, 34, 0},
    {"Star Lord", CellKind::Chips, 34, 0}, {"Sub Lord", CellKind::Chips, 34, 0},
    {"House", CellKind::Bold, 40, 0}};

// The bodies that most practitioners look at first.
bool IsUsual(exact::Point body) { return body == exact::Point::Sun || body == exact::Point::Moon; }

QString CodeOf(exact::Point body) { return Shown(exact::PointName(body)).left(2).toUpper(); }

}  // namespace

TriggerPanel::TriggerPanel(HoroscopeDocument& document)
    : document_(document),
      beat_(new QTimer(this)),
      table_(new MatterTable(document, "Triggers", tr("Triggers"), kColumns,
                             {height::kLeastRow, height::kLeastRow, false})),
      progress_(Named(new QProgressBar, "triggerProgress")),
      cancel_(MakeButton("cancelTriggers", tr("Cancel"))),
      calendar_(MakeButton("triggersToCalendar", QString())) {
  LayOut();
  beat_->setInterval(0);
  connect(beat_, &QTimer::timeout, this, &TriggerPanel::GoOn);
  connect(cancel_, &QPushButton::clicked, this, &TriggerPanel::Cancel);
  connect(calendar_, &QPushButton::clicked, this, &TriggerPanel::WriteCalendar);
}

void TriggerPanel::LayOut() {
  for (const exact::Point body : judgement::kTriggerBodies) {
    auto* button = new QToolButton;
    button->setObjectName("trigger" + Shown(exact::PointName(body)));
    button->setText(CodeOf(body));
    button->setToolTip(Shown(exact::PointName(body)));
    button->setAccessibleName(button->toolTip());
    button->setCheckable(true);
    button->setChecked(IsUsual(body));
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::toggled, this, &TriggerPanel::Begin);
    bodies_.push_back(button);
    table_->TitleLine().addWidget(button);
  }
  table_->TitleLine().setSpacing(2);
  calendar_->setIcon(Icon("calendar"));
  calendar_->setToolTip(tr("Triggers to calendar"));
  calendar_->setAccessibleName(calendar_->toolTip());
  calendar_->setFixedSize(height::kSmallField + space::kXs, height::kSmallField);
  progress_->setRange(0, kWholeBar);
  progress_->setTextVisible(false);
  progress_->setFixedWidth(kBarWidth);
  cancel_->setFixedHeight(height::kSmallField);
  for (QWidget* widget : std::initializer_list<QWidget*>{progress_, cancel_, calendar_}) {
    table_->TitleLine().addWidget(widget);
  }
  progress_->hide();
  cancel_->hide();
  table_->View().setFont(Theme::Text(type::kSmall));
  table_->View().verticalHeader()->setDefaultSectionSize(height::kLeastRow);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(table_);
}

std::vector<exact::Point> TriggerPanel::Bodies() const {
  std::vector<exact::Point> bodies;
  for (std::size_t place = 0; place < bodies_.size(); ++place) {
    if (bodies_[place]->isChecked()) {
      bodies.push_back(judgement::kTriggerBodies.at(place));
    }
  }
  return bodies;
}

judgement::TriggerSearch TriggerPanel::Search() const {
  const core::Session& session = document_.Place().Session;
  const judgement::MomentOfJudgement here = judgement::AtUserCity(session, request_.Period.From);
  judgement::TriggerSearch search;
  search.Bodies = Bodies();
  search.Lords = request_.Lords;
  search.Offset = exact::OffsetOf(here.Offset);
  search.From = request_.Period.From - search.Offset;
  search.To = request_.Period.To - search.Offset;
  search.Where = here.Where;
  search.Natal = judgement::NatalCusps(document_.Opened().Birth);
  return search;
}

void TriggerPanel::Show(Request request) {
  request_ = std::move(request);
  waits_ = true;
  if (isVisible()) {
    Begin();
  }
}

void TriggerPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (waits_) {
    Begin();
  }
}

void TriggerPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (run_) {
    beat_->stop();
    run_.reset();
    waits_ = true;
  }
}

void TriggerPanel::Begin() {
  waits_ = false;
  run_ = std::make_unique<judgement::TriggerRun>(document_.Place().Session, Search());
  table_->SetNote(tr("%1 to %2")
                      .arg(Shown(core::LongDateText(request_.Period.From, true)),
                           Shown(core::LongDateText(request_.Period.To, true))));
  GoOn();
}

// Works for a moment and lets events in; what is done at once shows no bar.
void TriggerPanel::GoOn() {
  if (!run_) {
    return;
  }
  QElapsedTimer clock;
  clock.start();
  while (!run_->Done() && !clock.hasExpired(kBeat)) {
    run_->Step();
  }
  if (run_->Done()) {
    End();
    return;
  }
  progress_->setValue(static_cast<int>(run_->Part() * kWholeBar));
  progress_->show();
  cancel_->show();
  calendar_->setEnabled(false);
  beat_->start();
}

// What was found until then stands.
void TriggerPanel::Cancel() {
  if (run_) {
    End();
    table_->SetNote(tr("given up, not all is listed"));
  }
}

void TriggerPanel::End() {
  beat_->stop();
  table_->View().SetEmptyText(
      request_.Lords.empty()
          ? tr("No planet is fruitful at this moment of judgement.")
          : tr("No chosen body passes a span of three fruitful lords in this period."));
  table_->ShowTable(run_->Table(), request_.Matter, {});
  run_.reset();
  progress_->hide();
  cancel_->hide();
  calendar_->setEnabled(!table_->View().Table().Rows.empty());
}

void TriggerPanel::WriteCalendar() {
  const std::chrono::seconds clock =
      exact::OffsetOf(judgement::NowAtUserCity(document_.Place().Session).Offset);
  const QString written = SaveCalendar(
      document_.Place(), *this, document_.Model().Name + " " + request_.Matter.Name + " triggers",
      judgement::TriggerEvents(table_->View().Table(), clock));
  if (!written.isEmpty()) {
    emit Told(written);
  }
}

}  // namespace orvex::ui
