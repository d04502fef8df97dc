#include "ui/horoscope/dasha_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QToolTip>

#include "ui/base/keys.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/segments.h"
#include "ui/base/theme.h"
#include "ui/horoscope/life_strip.h"
#include "ui/horoscope/period_columns.h"

namespace orvex::ui {

namespace {

constexpr int kListRows = 10;   // with the head
constexpr int kCountRows = 12;  // with head and title
constexpr int kDateWidth = 130;
constexpr int kRoomForSummaries = 1050;  // summaries
constexpr int kRoomForNow = 290;         // of a list; below, an arrow stands for the word

// The row that the list marks becomes the current one, so that the arrow keys go on from there.
void StandOnMarkedRow(TableView& view) {
  const std::optional<std::size_t> marked = chart::SelectedRow(view.Table());
  if (const auto row = marked ? view.Model().ShownRow(*marked) : std::nullopt) {
    const int planet = view.horizontalHeader()->logicalIndexAt(0);
    view.setCurrentIndex(view.Model().index(*row, planet));
    view.scrollTo(view.currentIndex());
  }
}

}  // namespace

DashaPage::DashaPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      strip_(new LifeStrip(document)),
      lists_{new CatalogueTable(document, "DashaList"), new CatalogueTable(document, "BhuktiList"),
             new CatalogueTable(document, "AntaraList"),
             new CatalogueTable(document, "SookshmaList")},
      periods_(new CatalogueTable(document, "DBAPeriods")),
      houses_(new CatalogueTable(document, "DBAHouseCount")),
      date_(new DateEdit("goToDate")),
      summary_(new Segments(
          {{"selectedPeriods", tr("Selected periods")}, {"houseCount", tr("House count")}})) {
  PlanTables();
  AddTools();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->setSpacing(space::kXs);
  layout->addWidget(strip_);
  layout->addLayout(LayOutLists(), kListRows);
  layout->addLayout(LayOutSummaries(), kCountRows);
  setMinimumSize(1, 1);
  for (std::size_t level = 0; level < lists_.size(); ++level) {
    Connect(level);
  }
  connect(strip_, &LifeStrip::PeriodChosen, this, &DashaPage::OpenLater);
  connect(summary_, &Segments::ChosenChanged, this, &DashaPage::ArrangeSummaries);
  periods_->TitleLine().insertWidget(0, summary_);
}

void DashaPage::PlanTables() {
  const RowBounds tight{height::kGridRow, height::kMostRow, true};
  for (std::size_t level = 0; level < lists_.size(); ++level) {
    CatalogueTable& list = *lists_.at(level);
    list.KeepOrder();
    list.View().setSelectionMode(QAbstractItemView::SingleSelection);
    TablePlan& plan = list.SetPlan({{"Planet", CellKind::Chip, 96, 0},
                                    {"End Date", CellKind::Figures, 90, 0},
                                    {kAgeColumn, CellKind::Age, 64, 1},
                                    {kStartColumn, CellKind::Age, 84, 2}},
                                   tight);
    plan.Cells().SetMarks([this, &list](const QModelIndex& index) {
      const core::Row& row = list.View().Table().Rows.at(list.View().Model().TableRow(index.row()));
      const core::DateTime today = Document().Place().Session.Time.Today();
      return StateOf(row, today) == PeriodState::Runs
                 ? QStringList{saysNow_ ? tr("now") : kNowArrow}
                 : QStringList();
    });
  }
  periods_->KeepOrder();
  periods_->SetPlan({{"Description", CellKind::Text, 92, 0},
                     {"Dasha", CellKind::Lord, 90, 0},
                     {"Bhukti", CellKind::Lord, 90, 0},
                     {"Antara", CellKind::Lord, 90, 0},
                     {"Sookshma", CellKind::Lord, 90, 0}},
                    tight);
  houses_->KeepOrder();
  houses_->SetNote(tr("how often each house is named"));
  std::vector<ColumnPlan> counts = {{"House", CellKind::Text, 130, 0}};
  for (int house = 1; house <= static_cast<int>(chart::kHouses); ++house) {
    counts.push_back({Typed(WholeText(house)), CellKind::Heat, 26, 0});
  }
  houses_->SetPlan(std::move(counts), tight);
}

void DashaPage::AddTools() {
  date_->setPlaceholderText(tr("Go to a date"));
  date_->setAccessibleName(date_->placeholderText());
  date_->setToolTip(tr("A date such as 5.9.2031, 2031-09-05 or 5 Sep 2031; Enter goes there"));
  date_->setFixedWidth(Scaled(kDateWidth));
  connect(date_, &QLineEdit::returnPressed, this, &DashaPage::GoToTyped);
  connect(date_, &DateEdit::DayPicked, this, &DashaPage::GoToTyped);
  QPushButton* running = MakeButton("runningPeriods", tr("Running periods"));
  running->setFixedHeight(height::kSmallField);
  BindKeys(*running, KeysOf("Horoscope", "running"));
  connect(running, &QPushButton::clicked, this,
          [this] { Document().GoToDay(Document().Place().Session.Time.Today()); });
  periods_->TitleLine().addWidget(date_);
  periods_->TitleLine().addWidget(running);
}

QHBoxLayout* DashaPage::LayOutLists() {
  auto* lists = new QHBoxLayout;
  lists->setSpacing(space::kM);
  for (CatalogueTable* list : lists_) {
    lists->addWidget(list, 1);
  }
  return lists;
}

QHBoxLayout* DashaPage::LayOutSummaries() {
  auto* summaries = new QHBoxLayout;
  summaries->setSpacing(space::kL);
  summaries->addWidget(periods_, 13);
  summaries->addWidget(houses_, 10);
  return summaries;
}

void DashaPage::GoToTyped() {
  const std::optional<core::DateTime> day = date_->Date();
  QString refused = day ? QString() : date_->Words();
  if (day && !Document().GoToDay(*day)) {
    refused = tr("No period of this horoscope runs on that date.");
  }
  if (!refused.isEmpty()) {
    QToolTip::showText(date_->mapToGlobal(QPoint(0, date_->height())), refused, date_);
  }
  date_->selectAll();
}

void DashaPage::Connect(std::size_t level) {
  TableView& view = lists_.at(level)->View();
  view.installEventFilter(this);
  connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this, level, &view](const QModelIndex& current) {
            if (!showing_ && current.isValid()) {
              OpenLater(level, view.Model().TableRow(current.row()));
            }
          });
}

bool DashaPage::eventFilter(QObject* watched, QEvent* event) {
  const auto* pressed =
      event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
  const int by = pressed == nullptr                ? 0
                 : pressed->key() == Qt::Key_Right ? 1
                 : pressed->key() == Qt::Key_Left  ? -1
                                                   : 0;
  const bool plain = by != 0 && (pressed->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  for (std::size_t level = 0; plain && level < lists_.size(); ++level) {
    if (watched == &lists_.at(level)->View()) {
      const std::size_t next =
          level + static_cast<std::size_t>(by);  // before the first: very large
      if (next < lists_.size()) {
        lists_.at(next)->View().setFocus(Qt::OtherFocusReason);
      }
      return true;
    }
  }
  return HoroscopePage::eventFilter(watched, event);
}

// Both beside each other, or the one that the switch in its title says.
void DashaPage::ArrangeSummaries() {
  const bool both = width() >= Scaled(kRoomForSummaries);
  const bool houses = summary_->Chosen() == 1;
  if (!both) {
    (houses ? houses_ : periods_)->TitleLine().insertWidget(0, summary_);
  }
  summary_->setVisible(!both);
  periods_->Title().setVisible(both);
  houses_->Title().setVisible(both);
  periods_->setVisible(both || !houses);
  houses_->setVisible(both || houses);
}

void DashaPage::resizeEvent(QResizeEvent* event) {
  HoroscopePage::resizeEvent(event);
  ArrangeSummaries();
  const bool room = width() / static_cast<int>(lists_.size()) >= Scaled(kRoomForNow);
  if (room != saysNow_) {
    saysNow_ = room;
    for (CatalogueTable* list : lists_) {
      list->Plan()->Fit();
    }
  }
}

void DashaPage::OpenLater(std::size_t level, std::size_t row) {
  // The lists are filled anew, which must not happen while one of them handles its click or key.
  QMetaObject::invokeMethod(
      this,
      [this, level, row] { Document().SelectPeriod(static_cast<chart::DashaLevel>(level), row); },
      Qt::QueuedConnection);
}

// A list with its ages under the path that leads to it.
void DashaPage::ShowList(std::size_t level) {
  const chart::DashaTree& tree = Model().Periods;
  const std::array<const core::Table*, 4> lists = {&tree.DashaList, &tree.BhuktiList,
                                                   &tree.AntaraList, &tree.SookshmaList};
  const core::DateTime today = Document().Place().Session.Time.Today();
  lists_.at(level)->ShowTable(WithAges(*lists.at(level), Model().Birth, today));
  StandOnMarkedRow(lists_.at(level)->View());
  lists_.at(level)->SetNote(PathTo(level));
}

// "of Venus / Mercury", the chosen periods above a list.
QString DashaPage::PathTo(std::size_t level) const {
  const chart::DashaTree& tree = Model().Periods;
  const std::array<const core::Table*, 3> above = {&tree.DashaList, &tree.BhuktiList,
                                                   &tree.AntaraList};
  QStringList names;
  for (std::size_t i = 0; i < level && i < above.size(); ++i) {
    if (const auto row = chart::SelectedRow(*above.at(i))) {
      const std::size_t planet = i == 0 ? core::Table::Index(chart::DashaColumn::Planet)
                                        : core::Table::Index(chart::PeriodColumn::Planet);
      names << Shown(above.at(i)->Rows.at(*row).Cells.at(planet).Text);
    }
  }
  return names.isEmpty() ? QString() : tr("of %1").arg(names.join(" / "));
}

void DashaPage::ShowModel() {
  const QScopedValueRollback<bool> showing(showing_, true);
  strip_->ShowModel();
  for (std::size_t level = 0; level < lists_.size(); ++level) {
    ShowList(level);
  }
  periods_->ShowModel();
  houses_->ShowModel();
}

}  // namespace orvex::ui
