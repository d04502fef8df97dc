#include "ui/main/sky_panel.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "report/chart_picture.h"
#include "report/sky_chart.h"
#include "ui/base/chart_view.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kMinute = 60000;  // milliseconds
constexpr int kSmallestChart = 24 * kGrid;

QLabel* PlainLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

TableView* Table(const char* name) {
  auto* table = new TableView;
  table->setObjectName(name);
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + kGrid / 2);
  return table;
}

// The colour of a weekday, "255, 255, 255", as the ground of a strip, with a text that is readable
// on it. White and no colour leave the ground as it is.
void PaintStrip(QWidget& strip, const std::string& rgb) {
  QColor ground;
  const std::vector<std::string> parts = core::Split(rgb, ',');
  if (parts.size() == 3) {
    const auto part = [&parts](std::size_t i) {
      return static_cast<int>(core::ParseWhole(core::Trim(parts[i])).value_or(255));
    };
    ground = Theme::Background(Typed(QColor(part(0), part(1), part(2)).name().mid(1).toUpper()));
  }
  QPalette palette;
  if (ground.isValid()) {
    palette.setColor(QPalette::Window, ground);
  }
  strip.setAutoFillBackground(ground.isValid());
  strip.setPalette(palette);
}

}  // namespace

SkyPanel::SkyPanel(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      header_(nullptr),
      title_(PlainLabel("skyTitle")),
      day_(PlainLabel("skyDay")),
      city_(PlainLabel("skyCity")),
      moon_(PlainLabel("skyMoon")),
      chart_(new ChartView("skyChart", kSmallestChart)),
      ruling_(Table("skyRulingPlanets")),
      panchang_(Table("panchang")),
      planets_(Table("skyPlanets")) {
  Build();
  minute_.setInterval(kMinute);
  connect(&minute_, &QTimer::timeout, this, &SkyPanel::Refresh);
}

void SkyPanel::Build() {
  header_ = BuildHeader();
  panchang_->setAccessibleName(tr("Panchang"));
  ruling_->setAccessibleName(tr("Ruling Planets"));
  planets_->setAccessibleName(tr("Sky View"));
  planets_->FreezeFirstColumn();
  panchang_->horizontalHeader()->hide();
  panchang_->setSortingEnabled(false);
  panchang_->SetStretchColumn(3);
  ruling_->SetStretchColumn(1);
  auto* upper = new QWidget;
  auto* column = new QVBoxLayout(upper);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(BuildChart(), 1);
  column->addWidget(panchang_);
  auto* halves = new QSplitter(Qt::Vertical);
  halves->setObjectName("skyHalves");
  halves->addWidget(upper);
  halves->addWidget(planets_);
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);
  place_.Layout.Remember(*halves);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(header_);
  layout->addWidget(halves, 1);
}

QWidget* SkyPanel::BuildHeader() {
  auto* strip = new QWidget;
  strip->setObjectName("skyStrip");
  title_->setFont(Theme::HeadingFont());
  auto* grid = new QGridLayout(strip);
  grid->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
  grid->setVerticalSpacing(kGrid / 4);
  grid->addWidget(title_, 0, 0);
  grid->addWidget(day_, 0, 1, Qt::AlignRight);
  grid->addWidget(city_, 1, 0);
  grid->addWidget(moon_, 1, 1, Qt::AlignRight);
  grid->setColumnStretch(1, 1);
  return strip;
}

QWidget* SkyPanel::BuildChart() {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(chart_, 1);
  layout->addWidget(ruling_, 1);
  return row;
}

void SkyPanel::StartTimer() { minute_.start(); }

void SkyPanel::Refresh() {
  panchang::GetCurrentTransit(place_.Session, view_);
  Show();
  emit Refreshed();
}

void SkyPanel::Show() {
  ShowHeader();
  chart_->SetPicture(
      report::RashiPicture(report::BuildSkyChart(view_), place_.Session.State.DefaultChartType));
  ruling_->SetTable(view_.SkyRulingPlanets);
  panchang_->SetTable(view_.Panchang);
  panchang_->FitHeightToRows();
  planets_->SetTable(view_.SkyPlanets);
}

void SkyPanel::ShowHeader() {
  const panchang::SkyCaptions& captions = view_.Captions;
  PaintStrip(*header_, captions.DishaShoolColor);
  title_->setText(Shown(captions.SkyView));
  day_->setText(Shown(captions.WeekdayName + ", " + captions.Date + "   " + captions.VikramSamvat));
  city_->setText(Shown(captions.City + " (" + captions.Place + ")"));
  moon_->setText(Shown(captions.MoonStatus));
}

}  // namespace orvex::ui
