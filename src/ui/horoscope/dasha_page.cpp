#include "ui/horoscope/dasha_page.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QVBoxLayout>

#include "ui/base/qt_text.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

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
      lists_{new CatalogueTable(document, "DashaList"), new CatalogueTable(document, "BhuktiList"),
             new CatalogueTable(document, "AntaraList"),
             new CatalogueTable(document, "SookshmaList")},
      periods_(new CatalogueTable(document, "DBAPeriods")),
      houses_(new CatalogueTable(document, "DBAHouseCount")) {
  auto* halves = new QSplitter(Qt::Vertical);
  halves->setObjectName("dashaHalves");
  halves->addWidget(LayOutLists());
  halves->addWidget(LayOutSummaries());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(halves, 1);
  document.Place().Layout.Remember(*halves);
  for (std::size_t level = 0; level < lists_.size(); ++level) {
    Connect(level);
  }
}

QSplitter* DashaPage::LayOutLists() {
  auto* lists = new QSplitter(Qt::Horizontal);
  lists->setObjectName("dashaLists");
  for (CatalogueTable* list : lists_) {
    list->KeepOrder();
    list->View().setSelectionMode(QAbstractItemView::SingleSelection);
    lists->addWidget(list);
  }
  Document().Place().Layout.Remember(*lists);
  return lists;
}

QSplitter* DashaPage::LayOutSummaries() {
  auto* summaries = new QSplitter(Qt::Horizontal);
  summaries->setObjectName("dashaSummaries");
  for (CatalogueTable* table : {periods_, houses_}) {
    table->KeepOrder();
    summaries->addWidget(table);
  }
  Document().Place().Layout.Remember(*summaries);
  return summaries;
}

void DashaPage::Connect(std::size_t level) {
  TableView& view = lists_.at(level)->View();
  connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this, level, &view](const QModelIndex& current) {
            if (!showing_ && current.isValid()) {
              OpenLater(level, view.Model().TableRow(current.row()));
            }
          });
}

void DashaPage::OpenLater(std::size_t level, std::size_t row) {
  // The lists are filled anew, which must not happen while one of them handles its click or key.
  QMetaObject::invokeMethod(
      this,
      [this, level, row] { Document().SelectPeriod(static_cast<chart::DashaLevel>(level), row); },
      Qt::QueuedConnection);
}

void DashaPage::ShowModel() {
  const QScopedValueRollback<bool> showing(showing_, true);
  for (CatalogueTable* list : lists_) {
    list->ShowModel();
    StandOnMarkedRow(list->View());
  }
  periods_->ShowModel();
  houses_->ShowModel();
}

}  // namespace orvex::ui
