#include "ui/transit/hora_view.h"

#include <QHBoxLayout>
#include <QHeaderView>

#include "panchang/hora.h"
#include "ui/base/export_table.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_plan.h"
#include "ui/base/theme.h"
#include "ui/dialogs/pick_city_dialog.h"

namespace orvex::ui {

namespace {

// The day that many days away; nothing beyond the calendar.
std::optional<core::DateTime> DayBeside(core::DateTime date, int days) {
  try {
    return core::DateAdd(core::DateInterval::Days, days, date);
  } catch (const core::DateRangeError&) {
    return std::nullopt;
  }
}

constexpr const char* kRunningTint = "FEF9D1";  // as the first period of a life

TableView* HoraList(Workplace& place, const char* name, const QString& title) {
  auto* table = new TableView;
  table->setObjectName(name);
  table->setAccessibleName(title);
  table->setSortingEnabled(false);
  table->SetEmptyText(HoraView::tr("The Sun does not rise or set on this date."));
  table->RememberWidths(place.Layout);
  OfferExport(place, *table);
  return table;
}

}  // namespace

HoraView::HoraView(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      cityId_(place.Session.State.UserCityId),
      shown_(place.Session.Time.Today()),
      caption_(MakeCaptionLabel("horaCaption")),
      previous_(MakeButton("previousDay", tr("&Previous day"))),
      date_(new DateEdit("horaDate")),
      next_(MakeButton("nextDay", tr("&Next day"))),
      city_(MakeButton("changeCity", tr("Change cit&y…"))),
      sunrise_(MakeCaptionLabel("sunrise")),
      sunset_(MakeCaptionLabel("sunset")),
      day_(HoraList(place, "dayHoras", tr("Horas of the day"))),
      night_(HoraList(place, "nightHoras", tr("Horas of the night"))),
      dayPlan_(PlanHoras(*day_)),
      nightPlan_(PlanHoras(*night_)) {
  setObjectName("horaView");
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  LayOut();
  date_->SetDate(shown_);
  Connect();
  CalcHora();
}

// The hora that runs carries the word, so that its tint is not all that tells it.
TablePlan* HoraView::PlanHoras(TableView& table) {
  auto* plan = new TablePlan(table, {{"Planet", CellKind::Chip, 130, 0},
                                     {"Start", CellKind::Text, 76, 0},
                                     {"End", CellKind::Text, 76, 0}});
  plan->Cells().SetMarks([this, &table](const QModelIndex& index) {
    const core::Row& row = table.Model().ShownRowAt(index.row());
    const std::string& start = row.Cells.at(core::Table::Index(panchang::HoraColumn::Start)).Tag;
    return !running_.empty() && start == running_ ? QStringList{"now"} : QStringList();
  });
  return plan;
}

void HoraView::LayOut() {
  caption_->setFont(Theme::Serif(type::kName));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(caption_);
  layout->addLayout(BuildDates());
  layout->addLayout(BuildTables(), 1);
}

QHBoxLayout* HoraView::BuildDates() {
  date_->setAccessibleName(tr("Date"));
  auto* row = new QHBoxLayout;
  for (QWidget* widget : std::initializer_list<QWidget*>{previous_, date_, next_}) {
    row->addWidget(widget);
  }
  row->addWidget(date_->MakeEcho(), 1);
  row->addWidget(city_);
  return row;
}

QHBoxLayout* HoraView::BuildTables() {
  auto* row = new QHBoxLayout;
  row->setSpacing(space::kXl);
  row->addWidget(BuildHalf(tr("Day"), sunrise_, day_));
  row->addWidget(BuildHalf(tr("Night"), sunset_, night_));
  return row;
}

QWidget* HoraView::BuildHalf(const QString& title, QLabel* sun, TableView* table) {
  auto* half = new QWidget;
  auto* head = new QHBoxLayout;
  head->addWidget(MakeHeading(title));
  head->addStretch();
  head->addWidget(sun);
  auto* column = new QVBoxLayout(half);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(head);
  column->addWidget(table, 1);
  return half;
}

void HoraView::Connect() {
  connect(date_, &DateEdit::Changed, this, &HoraView::CalcHora);
  connect(previous_, &QPushButton::clicked, this, [this] { Move(-1); });
  connect(next_, &QPushButton::clicked, this, [this] { Move(1); });
  connect(city_, &QPushButton::clicked, this, &HoraView::ChangeCity);
  BindKeys(*previous_, KeysOf(kMainWindow, "previousDay"));
  BindKeys(*next_, KeysOf(kMainWindow, "nextDay"));
}

// The horas of a date stay while another one is typed. A city that is gone leaves its caption and
// nothing else.
void HoraView::CalcHora() {
  shown_ = date_->Date().value_or(shown_);
  horas_ = panchang::CalcHora(place_.Session, shown_, cityId_)
               .value_or(panchang::HoraView{Typed(windowTitle()), "", "", {}, {}});
  const panchang::HoraView& view = horas_;
  setWindowTitle(Shown(view.Title));
  caption_->setText(Shown(view.Title));
  sunrise_->setText(view.Sunrise.empty() ? "" : tr("Sunrise: %1").arg(Shown(view.Sunrise)));
  sunset_->setText(view.Sunset.empty() ? "" : tr("Sunset: %1").arg(Shown(view.Sunset)));
  ShowRunning();
  previous_->setEnabled(DayBeside(shown_, -1).has_value());
  next_->setEnabled(DayBeside(shown_, 1).has_value());
}

// Over another city the clock of this machine tells nothing.
std::string HoraView::StartOfRunning() const {
  if (cityId_ != place_.Session.State.UserCityId) {
    return "";
  }
  for (const core::Table* horas : {&horas_.DayHoras, &horas_.NightHoras}) {
    if (const auto row = panchang::RunningHora(*horas, place_.Session.Time.Now())) {
      return horas->At(*row, panchang::HoraColumn::Start).Tag;
    }
  }
  return "";
}

void HoraView::ShowRunning() {
  running_ = StartOfRunning();
  for (const auto& [list, horas] :
       {std::pair{day_, horas_.DayHoras}, std::pair{night_, horas_.NightHoras}}) {
    core::Table marked = horas;
    for (std::size_t row = 0; row < marked.Rows.size(); ++row) {
      if (running_.empty() || marked.At(row, panchang::HoraColumn::Start).Tag != running_) {
        continue;
      }
      for (core::Cell& cell : marked.Rows[row].Cells) {
        cell.Bold = true;
        cell.Background = kRunningTint;
        cell.Tooltip = Typed(tr("This hora runs now."));
      }
    }
    list->SetTable(std::move(marked));
  }
  dayPlan_->Fit();
  nightPlan_->Fit();
}

void HoraView::FollowClock() {
  if (isVisible() && StartOfRunning() != running_) {
    ShowRunning();
  }
}

void HoraView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FollowClock();
}

void HoraView::Move(int days) {
  if (const std::optional<core::DateTime> day = DayBeside(shown_, days)) {
    date_->SetDate(*day);
  }
}

void HoraView::ChangeCity() {
  if (const std::optional<PickedCity> city = PickCity(place_, this)) {
    cityId_ = city->Id;
    CalcHora();
  }
}

void HoraView::FocusDate() {
  date_->setFocus(Qt::ShortcutFocusReason);
  date_->selectAll();
}

}  // namespace orvex::ui
