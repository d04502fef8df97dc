#include "ui/horoscope/vastu_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>

#include "ui/base/theme.h"
#include "ui/horoscope/all_columns.h"
#include "ui/horoscope/field_label.h"
#include "ui/horoscope/tables_page.h"
#include "ui/painting/report_document.h"

namespace orvex::ui {

using vedic::PlanSide;

VastuPage::VastuPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      sides_{new VastuSide(PlanSide::North), new VastuSide(PlanSide::East),
             new VastuSide(PlanSide::South), new VastuSide(PlanSide::West)},
      impacts_(new CatalogueTable(document, "ImpactTable")),
      hits_(new CatalogueTable(document, "HitsTable")) {
  impacts_->PlanAsUsual();
  hits_->PlanAsUsual();
  hits_->TitleLine().addWidget(MakeAllColumnsButton({impacts_, hits_}));
  impacts_->View().SetEmptyText(tr("No square or opposition strikes a house."));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->addWidget(LayOutPlan());
  layout->addWidget(LayOutTables(), 1);
  setMinimumSize(1, 1);
  for (CatalogueTable* table : {impacts_, hits_}) {
    connect(table, &CatalogueTable::PlanetActivated, this, &HoroscopePage::PlanetActivated);
  }
}

QWidget* VastuPage::LayOutPlan() {
  auto* plan = new QWidget;
  plan->setObjectName("vastuPlan");
  auto* note =
      new FieldLabel(tr("Red deities stand on pads that a square or an opposition strikes.\n"
                        "Rest the pointer on a pad for its slice of the circle."));
  note->setAlignment(Qt::AlignCenter);
  note->setWordWrap(true);
  auto* grid = new QGridLayout(plan);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(sides_[0], 0, 1);
  grid->addWidget(sides_[1], 1, 2);
  grid->addWidget(sides_[2], 2, 1);
  grid->addWidget(sides_[3], 1, 0);
  grid->addWidget(note, 1, 1);
  grid->setColumnStretch(0, 4);
  grid->setColumnStretch(1, 9);
  grid->setColumnStretch(2, 4);
  return plan;
}

QSplitter* VastuPage::LayOutTables() {
  auto* tables = new QSplitter(Qt::Horizontal);
  tables->setObjectName("vastuTables");
  tables->addWidget(impacts_);
  tables->addWidget(hits_);
  tables->setMinimumHeight(1);
  Document().Place().Layout.Remember(*tables);
  return tables;
}

void VastuPage::ShowModel() {
  for (VastuSide* side : sides_) {
    side->ShowPads(Model().VastuPads);
  }
  impacts_->ShowModel();
  hits_->ShowModel();
}

std::vector<PageBlock> VastuPage::PrintedBlocks() const {
  std::vector<PageBlock> blocks = {{PageText{PageRole::Part, tr("Pads of the plan")}},
                                   {PageTableOf(Model().VastuPads)}};
  for (const CatalogueTable* table : {impacts_, hits_}) {
    const std::vector<PageBlock> shown = ShownBlocks(*table);
    blocks.insert(blocks.end(), shown.begin(), shown.end());
  }
  return blocks;
}

}  // namespace orvex::ui
