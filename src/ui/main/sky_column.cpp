#include "ui/main/sky_column.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QToolButton>
#include <QVBoxLayout>

#include "panchang/day_strip.h"
#include "report/chart_picture.h"
#include "report/sky_chart.h"
#include "ui/base/chart_view.h"
#include "ui/base/elided_label.h"
#include "ui/base/export_table.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/table_plan.h"
#include "ui/base/theme.h"
#include "ui/main/hora_strip.h"

namespace orvex::ui {

namespace {

// Pixels at the usual text size.
constexpr int kChart = 150;
constexpr int kRulingRow = 21;
constexpr int kLeastPlanetRow = 19;
constexpr int kMostPlanetRow = 26;
constexpr int kLabelWidth = 98;
constexpr std::size_t kPlanets = 9;

// The entries of the panchang that the column shows; the Part of Fortune stands below them.
constexpr std::array<const char*, 7> kEntries = {
    "Sunrise/Sunset", "Paksha/Tithi", "Nakshatra/Rashi", "Current Hora",
    "Rahu Kaal",      "Yoga/Karan",   "Abhijit Muhurta"};

std::string EntryOf(const core::Table& panchang, const std::string& label) {
  for (const core::Row& row : panchang.Rows) {
    for (std::size_t column = 0; column + 1 < row.Cells.size(); column += 2) {
      if (row.Cells[column].Text == label) {
        return row.Cells[column + 1].Text;
      }
    }
  }
  return "";
}

// R, C and the dignity, as the marks of the horoscope's planets.
QStringList MarksOf(const QModelIndex& index) {
  QStringList marks;
  if (index.data(TableModel::TagRole).toString() == "R") {
    marks << "R";
  }
  for (const panchang::SkyPlanetColumn column :
       {panchang::SkyPlanetColumn::C, panchang::SkyPlanetColumn::DbEx}) {
    const QString mark = index.siblingAtColumn(static_cast<int>(column)).data().toString();
    if (!mark.isEmpty()) {
      marks << mark;
    }
  }
  return marks;
}

TableView* PlainTable(Workplace& place, const char* name, const QString& title) {
  auto* table = Named(new TableView, name);
  table->setAccessibleName(title);
  table->setSortingEnabled(false);
  table->setFrameShape(QFrame::NoFrame);
  table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  OfferExport(place, *table);
  return table;
}

}  // namespace

SkyColumn::SkyColumn(Workplace& place)
    : place_(place),
      title_(new ElidedLabel("nowTitle")),
      day_(new ElidedLabel("nowDay")),
      fold_(Named(new QToolButton, "foldSkyButton")),
      chart_(new ChartView("nowChart", Scaled(kChart))),
      ruling_(PlainTable(place, "nowRulingPlanets", tr("Ruling planets of now"))),
      rulingPlan_(new TablePlan(
          *ruling_, {{"Description", CellKind::Text, 100, 0}, {"Planet", CellKind::Chips, 34, 0}},
          {kRulingRow, kRulingRow, false})),
      strip_(new HoraStrip),
      planets_(PlainTable(place, "nowPlanets", tr("Planets of now"))),
      planetsPlan_(new TablePlan(*planets_,
                                 {{"Planet", CellKind::Chip, 110, 0},
                                  {"Degree", CellKind::Degree, 76, 0},
                                  {"Sign", CellKind::Chips, 34, 0},
                                  {"Star", CellKind::Chips, 34, 0},
                                  {"Sub", CellKind::Chips, 34, 0}},
                                 {kLeastPlanetRow, kMostPlanetRow, true})),
      changes_(MakeNext()),
      moon_(new ElidedLabel("nowMoon")),
      today_(new LinkButton("todayLink")),
      foot_(MakeFoot()) {
  planetsPlan_->Cells().SetMarks(MarksOf);
  planets_->setFont(Theme::Text(type::kSmall));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kS, space::kM + 2, space::kXs);
  layout->setSpacing(space::kXs);
  layout->addLayout(MakeHead());
  layout->addLayout(MakeChart());
  layout->addWidget(strip_);
  layout->addLayout(MakeLines());
  layout->addSpacing(space::kXs);
  layout->addWidget(planets_, 1);
  layout->addWidget(changes_);
  layout->addWidget(foot_);
}

QHBoxLayout* SkyColumn::MakeHead() {
  title_->setFont(Theme::Text(type::kText, QFont::DemiBold));
  day_->setFont(Theme::Text(type::kSmall));
  fold_->setIcon(Icon("fold"));
  fold_->setIconSize({kWordIcon, kWordIcon});
  fold_->setAutoRaise(true);
  fold_->setAccessibleName(tr("Fold the sky"));
  fold_->setToolTip(WithKeys(tr("Fold the sky"), KeysOf(kMainWindow, "foldSky")));
  auto* words = new QVBoxLayout;
  words->setSpacing(0);
  words->addWidget(title_);
  words->addWidget(day_);
  auto* head = new QHBoxLayout;
  head->addLayout(words, 1);
  head->addWidget(fold_);
  return head;
}

QHBoxLayout* SkyColumn::MakeChart() {
  chart_->setFixedSize(Scaled(kChart), Scaled(kChart));
  ruling_->setFont(Theme::Text(type::kSmall));
  ruling_->horizontalHeader()->hide();
  ruling_->setFixedHeight(Scaled(kChart));
  ruling_->verticalHeader()->setDefaultSectionSize(Scaled(kRulingRow));
  ruling_->setFocusPolicy(Qt::ClickFocus);
  auto* row = new QHBoxLayout;
  row->setSpacing(space::kXs);
  row->addWidget(chart_);
  row->addWidget(ruling_, 1);
  return row;
}

QGridLayout* SkyColumn::MakeLines() {
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(1);
  grid->setHorizontalSpacing(space::kXs);
  grid->setColumnMinimumWidth(0, Scaled(kLabelWidth));
  grid->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < kLines; ++i) {
    labels_.at(i) = new ElidedLabel(QString("nowLabel%1").arg(i));
    values_.at(i) = new ElidedLabel(QString("nowValue%1").arg(i));
    const int row = static_cast<int>(i);
    for (ElidedLabel* label : {labels_.at(i), values_.at(i)}) {
      label->setFont(Theme::Text(type::kSmall));
    }
    labels_.at(i)->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(labels_.at(i), row, 0);
    grid->addWidget(values_.at(i), row, 1);
  }
  return grid;
}

QWidget* SkyColumn::MakeNext() {
  auto* changes = new QWidget;
  auto* lines = new QVBoxLayout(changes);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  for (std::size_t i = 0; i < next_.size(); ++i) {
    next_.at(i) = new ElidedLabel(QString("nowNext%1").arg(i));
    next_.at(i)->setFont(Theme::Text(type::kSmall));
    lines->addWidget(next_.at(i));
  }
  return changes;
}

QWidget* SkyColumn::MakeFoot() {
  auto* foot = new QWidget;
  moon_->setFont(Theme::Text(type::kHead));
  today_->setText(tr("Today"));
  today_->setFont(Theme::Text(type::kSmall));
  today_->setFixedWidth(today_->fontMetrics().horizontalAdvance(today_->text()) + space::kS);
  today_->setToolTip(WithKeys(tr("The whole sky of now"), KeysOf(kMainWindow, "showToday")));
  auto* line = new QHBoxLayout(foot);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(moon_, 1);
  line->addWidget(today_);
  connect(today_, &QPushButton::clicked, this, &SkyColumn::TodayWanted);
  return foot;
}

void SkyColumn::ShowView(const panchang::SkyView& view) {
  const panchang::SkyCaptions& captions = view.Captions;
  title_->setText(Shown(captions.SkyView));
  day_->setText(Shown(captions.WeekdayName + ", " + captions.Date + " \u00B7 " + captions.City));
  chart_->SetPicture(
      report::RashiPicture(report::BuildSkyChart(view), place_.Session.State.DefaultChartType));
  ShowRuling(view);
  next_.front()->setText(Shown(captions.AscendantNext));
  next_.back()->setText(Shown(captions.MoonNext));
  const core::DateTime now = place_.Session.Time.Now();
  strip_->ShowStrip(panchang::DayStripOf(view, now), Shown(core::ShortTimeText(now)));
  ShowLines(view);
  ShowPlanets(view.SkyPlanets);
  moon_->setText(Shown(captions.MoonStatus + " \u00B7 " + captions.VikramSamvat));
}

// Each lord of the Ascendant and of the Moon tells when the next one comes.
void SkyColumn::ShowRuling(const panchang::SkyView& view) {
  core::Table ruling = view.SkyRulingPlanets;
  if (!ruling.Rows.empty()) {
    ruling.Rows.pop_back();  // the Part of Fortune has a line of its own
  }
  for (core::Row& row : ruling.Rows) {
    const std::string& role = row.Cells.front().Text;
    const std::string& next = role.rfind("Asc", 0) == 0    ? view.Captions.AscendantNext
                              : role.rfind("Moon", 0) == 0 ? view.Captions.MoonNext
                                                           : "";
    for (core::Cell& cell : row.Cells) {
      cell.Tooltip = next;
    }
  }
  ruling_->SetTable(std::move(ruling));
  rulingPlan_->Fit();
}

void SkyColumn::ShowLines(const panchang::SkyView& view) {
  for (std::size_t i = 0; i < kEntries.size(); ++i) {
    labels_.at(i)->setText(kEntries.at(i));
    values_.at(i)->setText(Shown(EntryOf(view.Panchang, kEntries.at(i))));
  }
  const core::Table& ruling = view.SkyRulingPlanets;
  if (!ruling.Rows.empty()) {
    const std::size_t last = ruling.Rows.size() - 1;
    labels_.back()->setText(Shown(ruling.At(last, panchang::SkyRulingColumn::Description).Text));
    values_.back()->setText(Shown(ruling.At(last, panchang::SkyRulingColumn::Planet).Text));
  }
}

// The nine planets; the captions of the lords stand alone, for the chips under them are narrow.
void SkyColumn::ShowPlanets(const core::Table& planets) {
  core::Table nine = planets;
  nine.Rows.resize(std::min(nine.Rows.size(), kPlanets));
  const auto shorten = [&nine](panchang::SkyPlanetColumn column, const char* caption) {
    core::Column& own = nine.Columns.at(core::Table::Index(column));
    own.Tooltip = own.Caption;
    own.Caption = caption;
  };
  shorten(panchang::SkyPlanetColumn::SignLord, "Sign");
  shorten(panchang::SkyPlanetColumn::StarLord, "Star");
  shorten(panchang::SkyPlanetColumn::SubLord, "Sub");
  planets_->SetTable(std::move(nine));
  planetsPlan_->Fit();
}

// Where the room is short the last lines go, and nothing else.
void SkyColumn::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int planets = planets_->horizontalHeader()->height() +
                      static_cast<int>(kPlanets) * Scaled(kLeastPlanetRow + 1);
  const int others = planets_->y() + space::kS;
  const int room = height() - others - planets - foot_->sizeHint().height();
  foot_->setVisible(room >= 0);
  changes_->setVisible(room >= changes_->sizeHint().height() + space::kXs);
}

}  // namespace orvex::ui
