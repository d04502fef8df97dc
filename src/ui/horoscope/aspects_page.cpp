#include "ui/horoscope/aspects_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>

#include "ui/base/elided_label.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/horoscope/all_columns.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

constexpr int kListWidth = 288;  // all columns of the list

}  // namespace

AspectsPage::AspectsPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      filter_(new QComboBox),
      summary_(new ElidedLabel("houseAspects")),
      planets_(new CatalogueTable(document, "PlanetAspectList")),
      cusps_(new CatalogueTable(document, "AspectGrid")) {
  filter_->setObjectName("aspectFilter");
  filter_->addItems({tr("All aspects"), tr("Good aspects"), tr("Hard aspects")});
  cusps_->KeepOrder();
  planets_->PlanAsUsual();
  cusps_->PlanAsUsual();
  // Twelve signs side by side.
  cusps_->View().setFont(Theme::Text(type::kHead));
  cusps_->View().horizontalHeader()->setFont(Theme::Text(type::kHead, QFont::DemiBold));
  cusps_->TitleLine().addWidget(MakeAllColumnsButton({planets_, cusps_}));
  planets_->View().SetEmptyText(tr("No aspect of this kind lies within its orb."));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->addLayout(LayOutHead());
  layout->addWidget(LayOutTables(), 1);
  Connect();
}

QHBoxLayout* AspectsPage::LayOutHead() {
  auto* caption = new QLabel(tr("&Show"));
  caption->setBuddy(filter_);
  auto* head = new QHBoxLayout;
  head->addWidget(caption);
  head->addWidget(filter_);
  head->addSpacing(kMargin);
  head->addWidget(summary_, 1);
  return head;
}

QSplitter* AspectsPage::LayOutTables() {
  auto* tables = new QSplitter(Qt::Horizontal);
  tables->setObjectName("aspectTables");
  tables->addWidget(planets_);
  tables->addWidget(cusps_);
  planets_->setMinimumWidth(Scaled(kListWidth));
  tables->setSizes({Scaled(kListWidth), width() - Scaled(kListWidth)});
  tables->setStretchFactor(0, 0);
  tables->setStretchFactor(1, 1);
  Document().Place().Layout.Remember(*tables);
  return tables;
}

void AspectsPage::Connect() {
  connect(filter_, &QComboBox::currentIndexChanged, this,
          [this](int choice) { Document().FilterAspects(static_cast<AspectFilter>(choice)); });
  for (CatalogueTable* table : {planets_, cusps_}) {
    connect(table, &CatalogueTable::PlanetActivated, this, &HoroscopePage::PlanetActivated);
  }
}

void AspectsPage::ShowModel() {
  const QSignalBlocker quiet(filter_);
  filter_->setCurrentIndex(static_cast<int>(Document().Filter()));
  const chart::HoroscopeCaptions& captions = Model().Captions;
  summary_->setText(QStringList{Shown(captions.SaturnAspects), Shown(captions.MarsAspects),
                                Shown(captions.JupiterAspects)}
                        .join("   |   "));
  planets_->ShowModel();
  cusps_->ShowModel();
}

}  // namespace orvex::ui
