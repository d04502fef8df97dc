#include "ui/horoscope/tables_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/all_columns.h"

namespace orvex::ui {

std::string chart::HoroscopeCaptions::*CaptionOf(const std::string& name) {
  const std::vector<horoscope::CaptionEntry>& entries = horoscope::HoroscopeCaptionTexts();
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&](const auto& entry) { return entry.Name == name; });
  if (found == entries.end()) {
    throw std::out_of_range("the catalogue has no caption " + name);
  }
  return found->Text;
}

TablesPage::TablesPage(HoroscopeDocument& document, const PagePlan& plan)
    : HoroscopePage(document) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  for (const char* name : plan.Captions) {
    QLabel* label = MakeCaptionLabel(name);
    captions_.emplace_back(label, CaptionOf(name));
    layout->addWidget(label);
  }
  auto* rows = new QSplitter(Qt::Vertical);
  rows->setObjectName(QString(plan.Name) + "Rows");
  for (std::size_t row = 0; row < plan.Tables.size(); ++row) {
    rows->addWidget(MakeRow(plan, row));
  }
  layout->addWidget(rows, 1);
  OfferAllColumns(plan.Tables.front().size());
  document.Place().Layout.Remember(*rows);
}

QSplitter* TablesPage::MakeRow(const PagePlan& plan, std::size_t row) {
  auto* splitter = new QSplitter(Qt::Horizontal);
  splitter->setObjectName(QString(plan.Name) + "Row" + WholeText(static_cast<int>(row)));
  QList<int> wanted;
  for (const char* name : plan.Tables.at(row)) {
    auto* table = new CatalogueTable(Document(), name);
    table->PlanAsUsual();
    connect(table, &CatalogueTable::PlanetActivated, this, &HoroscopePage::PlanetActivated);
    tables_.push_back(table);
    wanted << table->WidthFirstRead();
    splitter->addWidget(table);
  }
  splitter->setSizes(wanted);
  Document().Place().Layout.Remember(*splitter);
  return splitter;
}

// At the right end of the first row of tables.
void TablesPage::OfferAllColumns(std::size_t inFirstRow) {
  tables_.at(inFirstRow - 1)->TitleLine().addWidget(MakeAllColumnsButton(tables_));
}

CatalogueTable& TablesPage::TableOf(const char* name) {
  const auto found = std::find_if(tables_.begin(), tables_.end(), [&](CatalogueTable* table) {
    return table->View().objectName() == name;
  });
  if (found == tables_.end()) {
    throw std::out_of_range(std::string("the page has no table ") + name);
  }
  return **found;
}

void TablesPage::ShowModel() {
  for (const auto& [label, text] : captions_) {
    label->setText(Shown(Model().Captions.*text));
  }
  for (CatalogueTable* table : tables_) {
    table->ShowModel();
  }
}

}  // namespace orvex::ui
