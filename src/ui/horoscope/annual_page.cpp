#include "ui/horoscope/annual_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSplitter>

#include "ui/base/theme.h"
#include "ui/horoscope/chart_menu.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

constexpr int kLastYear = 120;

}  // namespace

AnnualPage::AnnualPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      year_(new QSpinBox),
      chart_(new ChartView("annualChart")),
      houses_(new CatalogueTable(document, "LalKitabYear")) {
  houses_->KeepOrder();
  houses_->PlanAsUsual();
  year_->setObjectName("yearOfLife");
  year_->setRange(1, kLastYear);
  year_->setKeyboardTracking(false);
  auto* halves = new QSplitter(Qt::Horizontal);
  halves->setObjectName("annualHalves");
  halves->addWidget(chart_);
  halves->addWidget(houses_);
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->addLayout(LayOutHead());
  layout->addWidget(halves, 1);
  document.Place().Layout.Remember(*halves);
  OfferChartMenu(document, *chart_);
  connect(year_, &QSpinBox::valueChanged, this, [this](int year) { Document().ShowYear(year); });
}

QHBoxLayout* AnnualPage::LayOutHead() {
  auto* caption = new QLabel(tr("&Year of life"));
  caption->setBuddy(year_);
  auto* head = new QHBoxLayout;
  head->addWidget(caption);
  head->addWidget(year_);
  head->addStretch(1);
  return head;
}

void AnnualPage::ShowModel() {
  const QSignalBlocker quiet(year_);
  year_->setValue(Model().RunningYear);
  chart_->SetPicture(report::AnnualPicture(Model().LalKitabYear, Document().Style()));
  houses_->ShowModel();
}

}  // namespace orvex::ui
