#include "ui/horoscope/ranked_panel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include "judgement/judgement_calendar.h"
#include "judgement/matter_planets.h"
#include "judgement/ranked_periods.h"
#include "ui/base/calendar_saving.h"
#include "ui/base/elided_label.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/period_filter.h"
#include "ui/horoscope/period_strip.h"
#include "ui/horoscope/trigger_panel.h"

namespace orvex::ui {

namespace {

constexpr int kLeastTriggers = 430;
constexpr int kMostTriggers = 520;
constexpr double kTriggerPart = 0.43;  // of the width
constexpr int kRoomForBoth = 1000;     // below, the triggers take the place of the list
constexpr int kRoomForFilter = 1020;
constexpr int kHouseWidth = 44;

std::vector<ColumnPlan> ColumnsFor(const judgement::Matter& matter) {
  std::vector<ColumnPlan> columns = {
      {"#", CellKind::Bold, 30, 0},        {"From", CellKind::Text, 96, 0},
      {"Until", CellKind::Text, 86, 1},    {"Age", CellKind::Age, 40, 2},
      {"Dasha", CellKind::Chips, 44, 0},   {"Bhukti", CellKind::Chips, 44, 0},
      {"Antara", CellKind::Chips, 44, 0},  {"Score", CellKind::Bold, 44, 0},
      {"Fruitful", CellKind::Text, 60, 3}, {"Houses", CellKind::Houses, 100, 4}};
  for (const int house : judgement::HousesOf(matter)) {
    columns.push_back({Typed(WholeText(house)), CellKind::Lords, kHouseWidth, 0});
  }
  return columns;
}

}  // namespace

RankedPanel::RankedPanel(HoroscopeDocument& document)
    : document_(document),
      filter_(new PeriodFilter),
      filterRow_(new QWidget),
      triggersButton_(MakeButton("showTriggers", tr("Triggers"))),
      calendar_(MakeButton("periodsToCalendar", tr("To calendar"))),
      strip_(new PeriodStrip),
      list_(new MatterTable(document, "MatterPeriods", tr("Periods, ranked"), {},
                            {height::kLeastRow, height::kLeastRow, false})),
      triggers_(new TriggerPanel(document)) {
  LayOut();
  Connect();
}

void RankedPanel::LayOut() {
  triggersButton_->setCheckable(true);
  triggersButton_->setFixedHeight(height::kSmallField);
  triggersButton_->setToolTip(tr("When planets pass spans of the fruitful ones in this period"));
  calendar_->setIcon(Icon("calendar"));
  calendar_->setFixedHeight(height::kSmallField);
  QHBoxLayout& head = list_->TitleLine();
  head.addWidget(filter_);
  head.addWidget(triggersButton_);
  head.addWidget(calendar_);
  list_->View().verticalHeader()->setDefaultSectionSize(
      std::max(height::kLeastRow, fontMetrics().height() + space::kXs));
  auto* help = new ElidedLabel("periodsHelp");
  help->setText(
      tr("Three marks a house: dasha, bhukti, antara lord; filled where that lord "
         "signifies it. Round gives, square denies. Enter opens the period on the page "
         "Periods."));
  help->setFont(Theme::Text(type::kHead));
  help->setForegroundRole(QPalette::PlaceholderText);
  triggers_->hide();
  auto* filterLine = new QHBoxLayout(filterRow_);
  filterLine->setContentsMargins(0, space::kXs, 0, space::kXs);
  filterRow_->hide();
  auto* lists = new QHBoxLayout;
  lists->setSpacing(space::kM);
  lists->addWidget(list_, 1);
  lists->addWidget(triggers_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(&list_->TitleRow());
  layout->addWidget(filterRow_);
  layout->addWidget(strip_);
  layout->addLayout(lists, 1);
  layout->addWidget(help);
}

void RankedPanel::Connect() {
  TableView& view = list_->View();
  connect(filter_, &PeriodFilter::Changed, this, &RankedPanel::WindowChanged);
  connect(filter_, &PeriodFilter::Refused, list_, &MatterTable::SetNote);
  connect(strip_, &PeriodStrip::PeriodClicked, this, [this, &view](int row) {
    view.SelectTag(MomentTag(row));
    FocusList();
  });
  connect(&view, &TableView::TagChosen, this, &RankedPanel::ShowChosen);
  connect(&view, &TableView::TagActivated, this, &RankedPanel::Open);
  connect(triggersButton_, &QPushButton::toggled, this, [this](bool) {
    Arrange();
    ShowChosen();
  });
  connect(calendar_, &QPushButton::clicked, this, &RankedPanel::WriteCalendar);
  connect(triggers_, &TriggerPanel::Told, this, &RankedPanel::Told);
}

std::string RankedPanel::MomentTag(int row) const {
  const auto place = static_cast<std::size_t>(row);
  return periods_.At(place, judgement::MatterPeriodColumn::From).SortKey;
}

const judgement::PeriodWindow& RankedPanel::Window() {
  const core::Session& session = document_.Place().Session;
  filter_->SetHoroscope(session.Reference, document_.Model(), session.Time.Now());
  return filter_->Window();
}

void RankedPanel::Show(const judgement::Judgement& judged, const judgement::Matter& matter,
                       const std::set<QString>& fruitful) {
  const bool sameMatter = matter.Id == matter_.Id;
  periods_ = judged.MatterPeriods;
  matter_ = matter;
  lords_ = judgement::FruitfulPlanets(judged.MatterPlanets);
  const std::string chosen = list_->View().SelectedTag();
  list_->Plan().SetColumns(ColumnsFor(matter));
  list_->View().SetEmptyText(
      tr("No period lies in this span. Choose \"Whole life\" above, or other dates or ages."));
  list_->ShowTable(judgement::BuildRankedPeriods(periods_, judged.MatterPlanets, matter), matter,
                   fruitful);
  const core::DateTime now = document_.Place().Session.Time.Now();
  strip_->Show(periods_, filter_->Window(), now);
  if (!sameMatter || chosen.empty() || !list_->View().SelectTag(chosen)) {
    list_->View().SelectFirst();
  }
  calendar_->setEnabled(!periods_.Rows.empty());
  ShowCount();
  ShowChosen();
}

void RankedPanel::ShowCount() {
  const judgement::PeriodWindow& window = filter_->Window();
  list_->SetNote(tr("%1 antaras from %2 to %3, the highest score first")
                     .arg(WholeText(static_cast<std::int64_t>(periods_.Rows.size())),
                          Shown(core::LongDateText(window.From, true)),
                          Shown(core::LongDateText(window.To, true))));
}

int RankedPanel::ChosenPeriod() const { return list_->View().ChosenRow().value_or(-1); }

void RankedPanel::ShowChosen() {
  const int row = ChosenPeriod();
  strip_->Choose(row);
  if (row >= 0 && triggersButton_->isChecked()) {
    const auto place = static_cast<std::size_t>(row);
    triggers_->Show(
        {matter_,
         lords_,
         {judgement::MomentOfPeriod(periods_.At(place, judgement::MatterPeriodColumn::From)),
          judgement::MomentOfPeriod(periods_.At(place, judgement::MatterPeriodColumn::Until))}});
  }
}

void RankedPanel::Open() {
  if (const int row = ChosenPeriod(); row >= 0) {
    emit PeriodOpened(core::ParseDateTime(MomentTag(row)).value_or(core::DateTime{}));
  }
}

void RankedPanel::FocusList() { list_->View().setFocus(); }

void RankedPanel::WriteCalendar() {
  const chart::HoroscopeModel& model = document_.Model();
  const QString written =
      SaveCalendar(document_.Place(), *this, model.Name + " " + matter_.Name,
                   judgement::PeriodEvents(
                       periods_, model.Name + ": " + matter_.Name,
                       Typed(WholeText(model.ClientId)) + "-" + Typed(WholeText(matter_.Id))));
  if (!written.isEmpty()) {
    emit Told(written);
  }
}

void RankedPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

void RankedPanel::Arrange() {
  const int wide =
      std::clamp(static_cast<int>(width() * kTriggerPart), kLeastTriggers * Theme::TextSize() / 100,
                 kMostTriggers * Theme::TextSize() / 100);
  const bool both = width() >= kRoomForBoth * Theme::TextSize() / 100;
  const bool shown = triggersButton_->isChecked();
  triggers_->setMinimumWidth(both ? wide : 1);
  triggers_->setMaximumWidth(both ? wide : QWIDGETSIZE_MAX);
  triggers_->setVisible(shown);
  list_->setVisible(both || !shown);
  PlaceFilter(width() >= kRoomForFilter * Theme::TextSize() / 100);
}

// In the line of the title, or in a line of its own.
void RankedPanel::PlaceFilter(bool inTitle) {
  if (inTitle == filterRow_->isHidden()) {
    return;
  }
  filterRow_->setVisible(!inTitle);
  if (inTitle) {
    list_->TitleLine().insertWidget(2, filter_);
  } else {
    static_cast<QHBoxLayout*>(filterRow_->layout())->insertWidget(0, filter_, 0, Qt::AlignLeft);
  }
}

}  // namespace orvex::ui
