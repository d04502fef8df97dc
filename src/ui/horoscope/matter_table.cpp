#include "ui/horoscope/matter_table.h"

#include <QHBoxLayout>
#include <QLabel>

#include "ui/base/elided_label.h"
#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/theme.h"
#include "ui/horoscope/house_group_line.h"
#include "ui/horoscope/house_header.h"

namespace orvex::ui {

MatterTable::MatterTable(HoroscopeDocument& document, const char* name, const QString& title,
                         std::vector<ColumnPlan> columns, RowBounds rows)
    : titleRow_(new QWidget),
      title_(MakeHeading(title)),
      note_(new ElidedLabel(QString(name) + "Note")),
      titleLine_(new QHBoxLayout(titleRow_)),
      view_(new TableView),
      header_(new HouseHeader(view_)) {
  view_->setObjectName(name);
  view_->setAccessibleName(title);
  view_->setSortingEnabled(false);
  view_->setHorizontalHeader(header_);
  header_->setFont(Theme::Text(type::kHead));
  view_->setMinimumSize(1, 1);
  view_->setSelectionMode(QAbstractItemView::SingleSelection);
  OfferExport(document.Place(), *view_);
  plan_ = new TablePlan(*view_, std::move(columns), rows);
  connect(plan_, &TablePlan::CodeClicked, &document, &HoroscopeDocument::ChoosePlanet);
  connect(&document, &HoroscopeDocument::PlanetChosen, plan_, &TablePlan::SetChosen);
  plan_->SetChosen(document.ChosenPlanet());
  note_->setFont(Theme::Text(type::kSmall));
  note_->setForegroundRole(QPalette::PlaceholderText);
  title_->setMinimumHeight(height::kSmallField);
  titleLine_->setContentsMargins(0, 0, 0, 0);
  titleLine_->setSpacing(space::kS);
  titleLine_->addWidget(title_);
  titleLine_->addWidget(note_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(titleRow_);
  layout->addWidget(view_, 1);
}

void MatterTable::ShowTable(const core::Table& table, const judgement::Matter& matter,
                            const std::set<QString>& fruitful) {
  const auto roles = [matter](int house) { return RoleIn(matter, house); };
  header_->SetHouseRoles(roles);
  plan_->Cells().SetHouseRoles(roles);
  plan_->Cells().SetFruitful(fruitful);
  view_->SetTable(table);
  plan_->Fit();
}

void MatterTable::SetNote(const QString& note) { note_->setText(note); }

void MatterTable::SetTitle(const QString& title) {
  title_->setText(title);
  view_->setAccessibleName(title);
}

int MatterTable::HeightOfHead() const {
  return titleRow_->sizeHint().height() + header_->sizeHint().height();
}

}  // namespace orvex::ui
