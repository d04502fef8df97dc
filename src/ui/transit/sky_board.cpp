#include "ui/transit/sky_board.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "report/chart_picture.h"
#include "report/sky_chart.h"
#include "ui/base/chart_view.h"
#include "ui/base/elided_label.h"
#include "ui/base/export_table.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/transit/disha_color.h"

namespace orvex::ui {

namespace {

constexpr int kSmallestChart = 18 * kGrid;
constexpr int kLeastHoras = 14 * kGrid;
constexpr int kHalf = 45 * kGrid;

QLabel* LinesLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

// A band in the colour of the weekday; without one it is not seen.
void PaintBand(QWidget& band, const std::string& rgb) {
  const QColor color = DishaColor(rgb);
  QPalette palette;
  if (color.isValid()) {
    palette.setColor(QPalette::Window, color);
  }
  band.setAutoFillBackground(color.isValid());
  band.setPalette(palette);
}

}  // namespace

SkyBoard::SkyBoard(Workplace& place, Side side)
    : place_(place),
      band_(new QWidget),
      title_(new ElidedLabel("skyTitle")),
      day_(new ElidedLabel("skyDay")),
      city_(new ElidedLabel("skyCity")),
      moon_(new ElidedLabel("skyMoon")),
      ganapathi_(new ElidedLabel("skyGanapathiRuling")),
      next_(LinesLabel("skyNextChange")),
      chart_(new ChartView("skyChart", kSmallestChart)),
      panchang_(MakeTable("panchang", tr("Panchang"))),
      planets_(MakeTable("skyPlanets", tr("Sky View"))) {
  Build(side);
}

TableView* SkyBoard::MakeTable(const char* name, const QString& title) {
  auto* table = new TableView;
  table->setObjectName(name);
  table->setAccessibleName(title);
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + kGrid / 2);
  OfferExport(place_, *table);
  return table;
}

void SkyBoard::Build(Side side) {
  QWidget* header = BuildHeader();
  planets_->FreezeFirstColumn();
  auto* halves = new QSplitter(Qt::Vertical);
  halves->setObjectName(side == Side::Horas ? "detailsSkyHalves" : "skyHalves");
  halves->addWidget(BuildUpper(side));
  halves->addWidget(planets_);
  // Beside the ruling planets the table of the sky stands whole.
  const bool whole = side == Side::RulingPlanets;
  halves->setStretchFactor(0, whole ? 1 : 3);
  halves->setStretchFactor(1, whole ? 1 : 2);
  if (whole) {
    halves->setSizes({kHalf, kHalf});
  }
  place_.Layout.Remember(*halves);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  band_->setFixedHeight(line::kWarning);
  layout->addWidget(band_);
  layout->addWidget(header);
  layout->addWidget(halves, 1);
}

QWidget* SkyBoard::BuildHeader() {
  auto* strip = new QWidget;
  title_->setFont(Theme::HeadingFont());
  auto* grid = new QGridLayout(strip);
  grid->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
  grid->setVerticalSpacing(kGrid / 4);
  grid->addWidget(title_, 0, 0);
  grid->addWidget(day_, 0, 1, Qt::AlignRight);
  grid->addWidget(city_, 1, 0);
  grid->addWidget(moon_, 1, 1, Qt::AlignRight);
  grid->addWidget(ganapathi_, 2, 0, 1, 2, Qt::AlignRight);
  grid->addWidget(next_, 3, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  return strip;
}

QWidget* SkyBoard::BuildUpper(Side side) {
  auto* row = new QHBoxLayout;
  row->addWidget(chart_, 1);
  if (side == Side::RulingPlanets) {
    ruling_ = MakeTable("skyRulingPlanets", tr("Ruling Planets"));
    ruling_->SetStretchColumn(1);
    row->addWidget(ruling_, 1);
  } else {
    AddHoras(*row);
  }
  panchang_->horizontalHeader()->hide();
  panchang_->setSortingEnabled(false);
  // Beside the month of the transits the board is narrow.
  panchang_->SetColumnRoom(0);
  panchang_->SetStretchColumn(3);
  auto* upper = new QWidget;
  auto* column = new QVBoxLayout(upper);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(row, 1);
  column->addWidget(panchang_);
  return upper;
}

void SkyBoard::AddHoras(QHBoxLayout& row) {
  dayHoras_ = MakeTable("skyDayHoras", tr("Horas of the day"));
  nightHoras_ = MakeTable("skyNightHoras", tr("Horas of the night"));
  for (TableView* horas : {dayHoras_, nightHoras_}) {
    horas->setSortingEnabled(false);
    row.addWidget(horas);
  }
}

void SkyBoard::ShowView(const panchang::SkyView& view) {
  ShowHeader(view.Captions);
  chart_->SetPicture(
      report::RashiPicture(report::BuildSkyChart(view), place_.Session.State.DefaultChartType));
  if (ruling_ != nullptr) {
    ruling_->SetTable(view.SkyRulingPlanets);
  } else {
    ShowHoras(*dayHoras_, view.DayHoras);
    ShowHoras(*nightHoras_, view.NightHoras);
  }
  panchang_->SetTable(view.Panchang);
  panchang_->FitHeightToRows();
  planets_->SetTable(view.SkyPlanets);
}

// The list takes the room of its columns where there is so much, the chart what is left.
void SkyBoard::ShowHoras(TableView& list, const core::Table& horas) {
  list.SetTable(horas);
  list.setMinimumWidth(std::min(kLeastHoras, list.sizeHint().width()));
  list.setMaximumWidth(list.sizeHint().width());
}

void SkyBoard::ShowHeader(const panchang::SkyCaptions& captions) {
  PaintBand(*band_, captions.DishaShoolColor);
  title_->setText(Shown(captions.SkyView));
  day_->setText(Shown(captions.WeekdayName + ", " + captions.Date + "   " + captions.VikramSamvat));
  city_->setText(Shown(captions.City + " (" + captions.Place + ")"));
  moon_->setText(Shown(captions.MoonStatus));
  moon_->setToolTip(Shown(captions.GanapathiRuling));
  ganapathi_->setText(Shown(captions.GanapathiRuling));
  next_->setText(Shown(captions.AscendantNext + "\n" + captions.MoonNext).trimmed());
}

}  // namespace orvex::ui
