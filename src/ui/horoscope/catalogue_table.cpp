#include "ui/horoscope/catalogue_table.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "chart/planet_marks.h"
#include "ui/base/elided_label.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/table_plans.h"

namespace orvex::ui {

namespace {

const horoscope::TableEntry& EntryOf(const std::string& name) {
  const std::vector<horoscope::TableEntry>& entries = horoscope::HoroscopeTables();
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&](const auto& entry) { return entry.Name == name; });
  if (found == entries.end()) {
    throw std::out_of_range("the catalogue has no table " + name);
  }
  return *found;
}

}  // namespace

std::optional<std::size_t> PlanetOfText(const chart::HoroscopeModel& model, const QString& text) {
  const std::string word =
      Typed(text.section(' ', 0, 0).remove(chart::kCombustMark).remove(chart::kRetrogradeMark));
  const std::optional<std::size_t> named = chart::RowOfPlanet(model, word);
  return named || word.size() != 2 ? named : chart::RowOfCode(model, word);
}

CatalogueTable::CatalogueTable(HoroscopeDocument& document, const char* name)
    : document_(document),
      entry_(EntryOf(name)),
      title_(MakeHeading(entry_.Title)),
      titleLine_(new QHBoxLayout),
      view_(new TableView) {
  view_->setObjectName(name);
  view_->setAccessibleName(entry_.Title);
  OfferExport(document_.Place(), *view_);
  if (KeepsWidths(entry_.Name)) {
    view_->RememberWidths(document.Place().Layout);
  }
  connect(view_, &TableView::TagActivated, this, [this] { Activate(view_->currentIndex()); });
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  titleLine_->setContentsMargins(0, 0, 0, 0);
  titleLine_->addWidget(title_, 0, Qt::AlignVCenter);
  titleLine_->addStretch(1);
  title_->setMinimumHeight(height::kSmallField);
  layout->addLayout(titleLine_);
  layout->addWidget(view_, 1);
}

TablePlan& CatalogueTable::SetPlan(std::vector<ColumnPlan> columns, RowBounds rows) {
  plan_ = new TablePlan(*view_, std::move(columns), rows);
  connect(plan_, &TablePlan::CodeClicked, &document_, &HoroscopeDocument::ChoosePlanet);
  connect(&document_, &HoroscopeDocument::PlanetChosen, plan_, &TablePlan::SetChosen);
  plan_->SetChosen(document_.ChosenPlanet());
  return *plan_;
}

TablePlan& CatalogueTable::PlanAsUsual() {
  usualPlan_ = true;
  TablePlan& plan = SetPlan({}, RowsFirstRead(entry_.Name));
  plan.Cells().SetMarks(MarksOfPlanet);
  return plan;
}

int CatalogueTable::WidthFirstRead() const {
  return ui::WidthFirstRead(entry_.Name, entry_.Of(document_.Model()));
}

void CatalogueTable::SetNote(const QString& note) {
  if (note_ == nullptr) {
    note_ = new ElidedLabel("note");
    note_->setFont(Theme::Text(type::kSmall));
    note_->setMinimumWidth(1);
    titleLine_->insertSpacing(1, space::kS);
    titleLine_->insertWidget(2, note_, 1);
    titleLine_->setStretch(3, 0);
  }
  QPalette quiet = note_->palette();
  quiet.setColor(QPalette::WindowText, Theme::Now().Ink2);
  note_->setPalette(quiet);
  note_->setText(note);
}

int CatalogueTable::HeightOfHead() const {
  const int head =
      view_->horizontalHeader()->isHidden() ? 0 : view_->horizontalHeader()->sizeHint().height();
  return titleLine_->sizeHint().height() + head;
}

void CatalogueTable::Activate(const QModelIndex& index) {
  for (const QModelIndex& cell : {index, index.siblingAtColumn(0)}) {
    if (const auto row = PlanetOfText(document_.Model(), cell.data().toString())) {
      emit PlanetActivated(*row);
      return;
    }
  }
}

void CatalogueTable::ShowModel() { ShowTable(entry_.Of(document_.Model())); }

void CatalogueTable::ShowTable(const core::Table& table) {
  // Columns are measured first; only then the last one takes the room that is left.
  QHeaderView& header = *view_->horizontalHeader();
  header.setStretchLastSection(false);
  view_->SetTable(table);
  if (usualPlan_) {
    plan_->SetColumns(ColumnsFirstRead(entry_.Name, table));
  }
  if (plan_ != nullptr) {
    plan_->Fit();
    return;
  }
  header.setStretchLastSection(!table.Columns.empty() && !table.Columns.back().Centred);
}

}  // namespace orvex::ui
